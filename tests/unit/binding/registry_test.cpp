#include <gtest/gtest.h>

#include "binding/module.h"
#include "binding/package.h"

using namespace deckforge::ppt::mi;

namespace {

class Registry : public ::testing::Test {
protected:
    void SetUp() override { PackageTree::clear(); }
    void TearDown() override {
        PackageTree::clear();
        registerPackages();
    }
};

// A sister module's "deckforge" that brings no "ppt" of its own.
class SisterPackage : public COSPackageInfo {
public:
    SisterPackage() : COSPackageInfo("deckforge") {}
    void populate(Package&) const override {}
};

class EmptyPpt : public COSPackageInfo {
public:
    EmptyPpt() : COSPackageInfo("ppt") {}
    void populate(Package&) const override {}
};

TEST_F(Registry, PackagesArePopulatedAndClassesDescribedOnFirstUse) {
    registerPackages();
    Package* deckforge = PackageTree::getPackage("deckforge");
    ASSERT_NE(deckforge, nullptr);
    EXPECT_FALSE(deckforge->isPopulated());
    Package* ppt = PackageTree::getPackage("deckforge.ppt");
    ASSERT_NE(ppt, nullptr);
    EXPECT_TRUE(deckforge->isPopulated());
    EXPECT_FALSE(ppt->isPopulated());
    auto names = ppt->classNames();
    ASSERT_GE(names.size(), 10u);
    EXPECT_EQ(names[0], "Null");
    EXPECT_EQ(names[1], "Object");
    ClassDescription const* slide = PackageTree::findClass("deckforge.ppt.Slide");
    ASSERT_NE(slide, nullptr);
    EXPECT_EQ(slide->fullName(), "deckforge.ppt.Slide");
    EXPECT_EQ(PackageTree::findClass("deckforge.ppt.Slide"), slide);
    EXPECT_EQ(PackageTree::findClass("deckforge.ppt.NoSuchClass"), nullptr);
}

TEST_F(Registry, SisterModuleKeepsItsPackageAndGetsPpt) {
    PackageTree::addPackage(std::make_unique<SisterPackage>());
    registerPackages();
    EXPECT_NE(PackageTree::findClass("deckforge.ppt.MessageFilter"), nullptr);
}

TEST_F(Registry, ExistingPptGetsTheClassesAtOnce) {
    PackageTree::addPackage(std::make_unique<SisterPackage>());
    PackageTree::getPackage("deckforge")->addSubPackage(std::make_unique<EmptyPpt>());
    registerPackages();
    EXPECT_NE(PackageTree::findClass("deckforge.ppt.Message"), nullptr);
}

TEST_F(Registry, HierarchyAndSignatureForms) {
    registerPackages();
    EXPECT_TRUE(PackageTree::isA("deckforge.ppt.ErrorMessage", "deckforge.ppt.Object"));
    EXPECT_TRUE(PackageTree::isA("deckforge.ppt.Slide", "deckforge.ppt.Node"));
    EXPECT_FALSE(PackageTree::isA("deckforge.ppt.MessageFilter", "deckforge.ppt.Object"));
    EXPECT_TRUE(PackageTree::findClass("deckforge.ppt.MessageFilter")->superclasses().empty());

    ClassDescription const* dispatcher = PackageTree::findClass("deckforge.ppt.MessageDispatcher");
    auto dispatch = dispatcher->methodOverloads("dispatch");
    ASSERT_EQ(dispatch.size(), 1u);
    EXPECT_EQ(dispatch[0]->signature.self, "deckforge.ppt.MessageDispatcher");
    EXPECT_EQ(dispatch[0]->signature.result, words::Void);
    auto statics = dispatcher->methodOverloads("getTheDispatcher");
    ASSERT_EQ(statics.size(), 1u);
    EXPECT_EQ(statics[0]->kind, MethodInfo::Kind::Static);
    EXPECT_TRUE(statics[0]->signature.self.empty());
    ASSERT_EQ(dispatcher->events().size(), 1u);
    EXPECT_EQ(dispatcher->events()[0].name, "Message");

    // Untyped inputs: no self word, the class as first input.
    auto layouts = PackageTree::findClass("deckforge.ppt.Presentation")->methodOverloads("getLayoutNames");
    ASSERT_EQ(layouts.size(), 1u);
    EXPECT_TRUE(layouts[0]->signature.self.empty());
    EXPECT_EQ(layouts[0]->signature.inputs,
              (std::vector<std::string>{"deckforge.ppt.Presentation", words::Any}));
    EXPECT_EQ(layouts[0]->callerInputs(), std::vector<std::string>{words::Any});
}

TEST_F(Registry, EntriesRunOnce) {
    HostInitialize_deckforge_ppt();
    HostInitialize_deckforge_ppt();
    int top = 0;
    ASSERT_NE(PackageTree::getPackage("deckforge"), nullptr);
    for (auto const& name : PackageTree::getPackage("deckforge.ppt")->classNames()) top += name == "Null";
    EXPECT_EQ(top, 1);
    deckforge_host_fcn_table const* table = QueryHostFcnTable_deckforge_ppt();
    EXPECT_STREQ(table->libraryName, "libdeckforge_ppt.so");
    EXPECT_EQ(table->hostGlue("no such host"), nullptr);
}

}  // namespace
