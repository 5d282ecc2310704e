#include <gtest/gtest.h>

#include "engine/fake_nodes.h"
#include "engine/ppt_object.h"
#include "messages/message.h"

using namespace deckforge;
using namespace deckforge::ppt;
using namespace deckforge::ppt::test;

namespace {

unsigned long idOf(PPTObject const& o) {
    return std::stoul(toUtf8(o.getId()));
}

class Client : public PPTClientImpl {
public:
    boost::shared_ptr<PPTClientImpl> clone() const override {
        return boost::make_shared<Client>(*this);
    }
};

}  // namespace

TEST(ObjectTest, HandlesCountReferencesAndShareOneImplementation) {
    int const before = FakeSlideImpl::alive;
    {
        FakeSlide slide;
        PPTObjectImpl* impl = slide.getImpl();
        EXPECT_EQ(impl->getRefCount(), 1u);
        EXPECT_EQ(FakeSlideImpl::alive, before + 1);
        {
            FakeSlide copy = slide;
            PPTNodePtr viaInterface = slide.makeInterface();
            PPTNodePtr another = slide.makeInterface();
            EXPECT_NE(viaInterface.get(), another.get());  // a new handle each time
            EXPECT_EQ(viaInterface->getImpl(), impl);
            EXPECT_EQ(impl->getRefCount(), 4u);
            copy = FakeSlide();  // reassigning drops the old reference
            EXPECT_EQ(impl->getRefCount(), 3u);
        }
        EXPECT_EQ(impl->getRefCount(), 1u);
        PPTObject plain(impl);  // wrapping an existing implementation
        EXPECT_EQ(impl->getRefCount(), 2u);
    }
    EXPECT_EQ(FakeSlideImpl::alive, before);

    PPTObject empty(nullptr);  // no reference taken or released
    EXPECT_EQ(empty.getImpl(), nullptr);
}

TEST(ObjectTest, IdsIncreaseAcrossClassesAndCopiesAndTagsAreComputedUntilSet) {
    PPTObject a;
    FakeSlide slide;
    ErrorMessage message(u"x");
    PPTNodePtr copy = slide.clone();
    EXPECT_LT(idOf(a), idOf(slide));
    EXPECT_LT(idOf(slide), idOf(message));
    EXPECT_LT(idOf(message), idOf(*copy));

    EXPECT_EQ(a.getTag(), u"ppt.Object:" + a.getId());
    EXPECT_EQ(slide.getTag(), u"ppt.Slide:" + slide.getId());
    slide.setTag(u"mine");
    EXPECT_EQ(slide.getTag(), u"mine");
    EXPECT_EQ(slide.clone()->getTag().rfind(u"ppt.Slide:", 0), 0u);  // a copy doesn't inherit the Tag
    slide.setTag(u"");
    slide.setId(u"7");
    a.setId(u"7");  // duplicates are allowed
    EXPECT_EQ(slide.getTag(), u"ppt.Slide:7");
    EXPECT_EQ(a.getId(), slide.getId());
}

TEST(ObjectTest, ClientIsOwnedByItsObjectAndClonedWithIt) {
    FakeSlide slide;
    auto client = boost::make_shared<Client>();
    slide.setPPTClientImpl(client);
    EXPECT_EQ(client->getOwner(), slide.getImpl());
    EXPECT_EQ(slide.getPPTClientImpl(), client);

    PPTNodePtr copy = slide.clone();
    auto copied = copy->getPPTClientImpl();
    ASSERT_TRUE(copied && copied != client);
    EXPECT_EQ(copied->getOwner(), copy->getImpl());
}
