#include <gtest/gtest.h>

#include <stdexcept>

#include "messages/message_dispatcher.h"
#include "platform/hobj.h"
#include "platform/i18n.h"
#include "platform/msg_ids.h"

using namespace deckforge;
using namespace deckforge::ppt;
using hobj::factory::basic::BindingRegistry;

namespace {

TEST(MessageTest, TextSourceAndFormatting) {
    PPTObject source;
    source.setTag(u"src");
    WarningMessage withSource(u"<b>a & b</b>", source);
    EXPECT_EQ(withSource.formatAsText(), u"src <b>a & b</b>");
    EXPECT_EQ(withSource.formatAsHTML(), u"<p>src <b>a & b</b></p>");  // nothing escaped
    EXPECT_EQ(ProgressMessage(u"x").formatAsHTML(), u"<p>x</p>");
    EXPECT_FALSE(DebugMessage(u"x", PPTObject(nullptr)).getSource());  // an empty object is no source

    auto id = resource_core::makeMsgID<ppt_warning::invalidTableStyle>(u"Fancy");
    ErrorMessage fromId(id, source);
    EXPECT_EQ(fromId.getText(), fl::i18n::MessageCatalog::get_message(id));
    EXPECT_NE(fromId.getText().find(u"Fancy"), u16string::npos);
    EXPECT_EQ(fromId.getSource()->getImpl(), source.getImpl());
}

TEST(MessageFilterTest, SourceBeatsGlobalBeatsSwitches) {
    MessageFilter f;
    auto passes = [&f](Message const& m) { return m.passesFilter(f); };
    EXPECT_FALSE(passes(DebugMessage(u"d")));
    EXPECT_TRUE(passes(ErrorMessage(u"e")) && passes(WarningMessage(u"w")) && passes(ProgressMessage(u"p")));
    f.setWarningMessagesPass(false);
    EXPECT_FALSE(passes(WarningMessage(u"w")));
    f.unsetGlobalFilter();  // unsetting an unset filter does nothing
    EXPECT_FALSE(f.getGlobalFilter().isSet());

    f.setGlobalFilter(u"pass");  // the switches no longer count
    EXPECT_TRUE(passes(DebugMessage(u"d")) && passes(WarningMessage(u"w")));
    for (u16string blocker : {u"PASS", u"", u"pass "}) {
        f.setGlobalFilter(blocker);
        EXPECT_FALSE(passes(ErrorMessage(u"e")));
    }

    PPTObject mine, other;
    f.setGlobalFilter(u"pass");
    f.setSourceFilter(mine);
    EXPECT_FALSE(passes(ErrorMessage(u"e", other)));
    EXPECT_TRUE(passes(ErrorMessage(u"e", PPTObject(mine.getImpl()))));  // same object, other handle
    EXPECT_TRUE(passes(DebugMessage(u"d")));  // no source: not stopped by the source
    f.setGlobalFilter(u"no");
    EXPECT_FALSE(passes(ErrorMessage(u"e", mine)));

    f.unsetGlobalFilter();
    f.setSourceFilter(PPTObject(nullptr));  // an empty object stops nothing
    EXPECT_TRUE(passes(ErrorMessage(u"e", other)));
    f.unsetSourceFilter();  // and holds no reference once unset
    f.setSourceFilter(mine);
    EXPECT_EQ(mine.getImpl()->getRefCount(), 2u);
    f.unsetSourceFilter();
    EXPECT_EQ(mine.getImpl()->getRefCount(), 1u);
}

// The dispatcher's script object, as the binding will provide it.
class ScriptObject : public hobj::COSInterface {
public:
    bool isBeingDestroyed() const override { return dying; }
    void notify(char const* name, hobj::factory::full::Wrappable& data) override {
        EXPECT_STREQ(name, "Message");
        received.push_back(dynamic_cast<MessageEventDataImpl&>(data).getMessage()->getImpl());
        if (fail) throw std::runtime_error("listener failed");
    }
    void retracted() noexcept override { ++retractions; }

    bool dying = false, fail = false;
    int retractions = 0;
    std::vector<PPTObjectImpl*> received;
};

TEST(DispatcherTest, RaisesMessageEventOnlyForPassingMessagesAndALiveScriptObject) {
    MessageDispatcher& dispatcher = MessageDispatcher::getTheDispatcher();
    EXPECT_EQ(MessageDispatcher::getTheDispatcher().getImpl(), dispatcher.getImpl());
    ErrorMessage error(u"e");
    EXPECT_NO_THROW(dispatcher.dispatch(error));  // no script object yet

    ScriptObject script;
    BindingRegistry::bind(*dispatcher.getImpl(), &script);
    dispatcher.dispatch(error);
    dispatcher.dispatch(DebugMessage(u"d"));
    EXPECT_EQ(script.received, std::vector<PPTObjectImpl*>{error.getImpl()});

    dispatcher.getMessageFilter().setErrorMessagesPass(false);  // the live filter
    dispatcher.dispatch(error);
    dispatcher.getMessageFilter().setErrorMessagesPass(true);
    script.dying = true;
    dispatcher.dispatch(error);
    EXPECT_EQ(script.received.size(), 1u);

    script.dying = false;
    script.fail = true;
    EXPECT_THROW(dispatcher.dispatch(error), std::runtime_error);  // listeners' errors pass through
    BindingRegistry::remove(*dispatcher.getImpl());
}

TEST(BindingTest, ImplementationRetractsItsScriptObjectWhenItDies) {
    ScriptObject script;
    {
        MessageFilter filter;
        BindingRegistry::bind(*filter.getImpl(), &script);
        MessageFilter copy(new MessageFilterImpl(*filter.filterImpl()));
        EXPECT_EQ(BindingRegistry::lookup(*copy.getImpl()), nullptr);  // a copy has no script object
    }
    EXPECT_EQ(script.retractions, 1);
}

}  // namespace
