#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/fake_nodes.h"
#include "messages/message_dispatcher.h"
#include "platform/hobj.h"
#include "platform/i18n.h"
#include "platform/msg_ids.h"

using namespace deckforge;
using namespace deckforge::ppt;
using namespace deckforge::ppt::test;

namespace {

// The dispatcher's script object, recording the texts of the events raised on it.
class Listener : public hobj::COSInterface {
public:
    bool isBeingDestroyed() const override { return false; }
    void notify(char const*, hobj::factory::full::Wrappable& data) override {
        auto& event = dynamic_cast<MessageEventDataImpl&>(data);
        texts.push_back(event.getMessage()->getText());
    }
    void retracted() noexcept override {}
    std::vector<u16string> texts;
};

class DebugMessagesTest : public testing::Test {
protected:
    void SetUp() override { hobj::factory::basic::BindingRegistry::bind(*dispatcher().getImpl(), &listener); }
    void TearDown() override {
        filter().setDebugMessagesPass(false);
        hobj::factory::basic::BindingRegistry::remove(*dispatcher().getImpl());
    }
    static MessageDispatcher& dispatcher() { return MessageDispatcher::getTheDispatcher(); }
    static MessageFilter filter() { return dispatcher().getMessageFilter(); }
    template <class Id>
    static u16string textOf(u16string const& tag) {
        return fl::i18n::MessageCatalog::get_message(resource_core::makeMsgID<Id>(tag));
    }

    Listener listener;
};

}  // namespace

TEST_F(DebugMessagesTest, ReportCreationAndDestructionByTag) {
    filter().setDebugMessagesPass(true);
    u16string tag, copyTag;
    {
        FakeSlide slide;
        tag = slide.getTag();
        PPTNodePtr copy = slide.clone();
        copyTag = copy->getTag();
    }
    std::vector<u16string> expected{
        textOf<ppt_debug::objCreated>(tag), textOf<ppt_debug::objCreated>(copyTag),
        textOf<ppt_debug::objDestroyed>(copyTag), textOf<ppt_debug::objDestroyed>(tag)};
    EXPECT_EQ(listener.texts, expected);
}
