#include <cmath>

#include <gtest/gtest.h>

#include "binding/invoke.h"
#include "binding/marshal.h"
#include "binding/module.h"
#include "binding/package.h"
#include "binding/script_object.h"
#include "fake_host.h"
#include "messages/message.h"
#include "messages/message_dispatcher.h"
#include "messages/message_filter.h"
#include "platform/except.h"

using namespace deckforge::ppt;
using namespace deckforge::ppt::mi;
using foundation::core::except::IMsgIDException;

namespace {

std::string errorOf(std::function<void()> const& f) {
    try {
        f();
    } catch (IMsgIDException const& e) {
        return e.identifier();
    }
    return "no error";
}

hvArray chars(char16_t const* text, std::size_t rows, std::size_t cols) {
    return hvArray::text(text, rows, cols);
}

Value numbers(std::vector<double> const& xs, hvClassID id = hvClassID::Double) {
    hvArray a(id, 1, xs.size());
    for (std::size_t i = 0; i < xs.size(); ++i) a.setNumber(i, xs[i]);
    return Value(a);
}

Value ref(ObjectRef::State state, std::string className, ScriptObject* object = nullptr) {
    ObjectRef r;
    r.state = state;
    r.className = std::move(className);
    r.object = object;
    return Value(r);
}

class Marshal : public ::testing::Test {
protected:
    void SetUp() override {
        if (!PackageTree::getPackage("deckforge.ppt")) registerPackages();
    }
    FakeHost host;
};

TEST_F(Marshal, TextFollowsTheHostRules) {
    EXPECT_EQ(toText(Value(chars(u"abc", 1, 3))), u"abc");
    EXPECT_EQ(toText(Value(hvArray(hvClassID::Char, 0, 0))), u"");
    // Column-major 2x3 "abc"/"def" is refused unless any shape is allowed.
    Value block(chars(u"adbecf", 2, 3));
    EXPECT_EQ(errorOf([&] { toText(block); }), "QUORIX:string:MustBeStringScalarOrCharacterVector");
    EXPECT_EQ(toText(block, true), u"adbecf");
    EXPECT_EQ(errorOf([] { toText(Value::number(5)); }), "QUORIX:string:MustBeStringScalarOrCharacterVector");
    EXPECT_EQ(errorOf([] { toText(Value()); }), "QUORIX:string:MustBeStringScalarOrCharacterVector");
}

TEST_F(Marshal, LogicalAdapter) {
    EXPECT_FALSE(toLogical(numbers({0})));
    EXPECT_TRUE(toLogical(numbers({1})));
    EXPECT_TRUE(toLogical(numbers({NAN})));
    EXPECT_FALSE(toLogical(numbers({0, 1})));  // the first element counts
    EXPECT_TRUE(toLogical(Value::logical(true)));
    EXPECT_TRUE(toLogical(numbers({7}, hvClassID::UInt32)));
    EXPECT_EQ(errorOf([] { toLogical(Value::text(u"a")); }),
              "deckforge:ppt_error:invalidLogicalPropertyValue");
    EXPECT_EQ(errorOf([] { toLogical(Value()); }), "deckforge:ppt_error:invalidLogicalPropertyValue");
    hvArray twoLogicals(hvClassID::Logical, 1, 2);
    EXPECT_EQ(errorOf([&] { toLogical(Value(twoLogicals)); }),
              "deckforge:ppt_error:invalidLogicalPropertyValue");
}

TEST_F(Marshal, NativeObjectsAreWrappedOnceAndFoundAgain) {
    MessageFilter filter;
    Value first = toScript(filter);
    ASSERT_TRUE(first.isObject());
    ScriptObject* record = first.object().object;
    ASSERT_EQ(ScriptObject::find(*filter.getImpl()), record);
    // A second handle over the same implementation is the same object.
    Value again = toScript(MessageFilter(filter.getImpl()));
    EXPECT_EQ(again.object().object, record);
    EXPECT_EQ(host.made, 1);
    EXPECT_TRUE(sameObject(first, again));

    EXPECT_TRUE(toScript(PPTObject(nullptr)).isEmpty());
    EXPECT_TRUE(toScript(boost::shared_ptr<Message>()).isEmpty());

    // The script object keeps the implementation alive until the host lets go.
    std::uint32_t count = filter.getImpl()->getRefCount();
    ScriptObject::destroy(record);
    EXPECT_EQ(filter.getImpl()->getRefCount(), count - 1);
    EXPECT_EQ(ScriptObject::find(*filter.getImpl()), nullptr);
    EXPECT_EQ(host.forgotten, 1);
}

TEST_F(Marshal, ObjectArgumentsAreChecked) {
    MessageFilter filter;
    Value live = toScript(filter);
    std::string const cls = "deckforge.ppt.MessageFilter";
    EXPECT_EQ(toObject(live, cls).getImpl(), filter.getImpl());
    EXPECT_EQ(toObject(Value::cell(1, 1, {live}), cls).getImpl(), filter.getImpl());

    EXPECT_EQ(errorOf([&] { toObject(Value(), cls); }), "deckforge:ppt_error:emptyPPTObjArrayError");
    EXPECT_EQ(errorOf([&] {
                  toObject(Value::cell(1, 2, {live, live}), cls);
              }),
              "deckforge:ppt_error:nonscalarPPTObjArrayError");
    EXPECT_EQ(errorOf([&] { toObject(ref(ObjectRef::State::Deleted, cls), cls); }),
              "QUORIX:class:InvalidHandle");
    EXPECT_EQ(errorOf([&] { toObject(ref(ObjectRef::State::Foreign, "containers.Map"), cls); }),
              "deckforge:dom_error:fromQUORIXMarshallingError");
    EXPECT_EQ(errorOf([&] { toObject(live, "deckforge.ppt.Message"); }),
              "deckforge:dom_error:fromQUORIXMarshallingError");
    EXPECT_EQ(errorOf([&] { toObject(Value::number(3), cls); }),
              "deckforge:dom_error:fromQUORIXMarshallingError");
    // A script subclass whose native constructor never ran.
    EXPECT_EQ(errorOf([&] { toObject(ref(ObjectRef::State::Unconstructed, "mine.Filter"), cls); }),
              "deckforge:dom_error:missingImplementationError");
    // A pointer that is no record (a stale one) is a deleted object.
    auto* bogus = reinterpret_cast<ScriptObject*>(&filter);
    EXPECT_EQ(errorOf([&] { toObject(ref(ObjectRef::State::Live, cls, bogus), cls); }),
              "QUORIX:class:InvalidHandle");
    ScriptObject::destroy(live.object().object);
}

TEST_F(Marshal, OverloadsAndConversionsOfCalls) {
    MessageDispatcher& dispatcher = MessageDispatcher::getTheDispatcher();
    Value d = toScript(dispatcher);
    std::string const cls = "deckforge.ppt.ErrorMessage";

    ScriptObject* made = construct(cls, {Value::text(u"hello"), d});
    ASSERT_NE(made, nullptr);
    Value message = FakeHost::live(*made, cls);
    auto text = callMethod(message, cls, "formatAsText", {});
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->array().chars(), dispatcher.getTag() + u" hello");
    EXPECT_EQ(toText(getProperty(message, cls, "Text")), u"hello");

    EXPECT_EQ(errorOf([&] {
                  construct(cls, {Value::number(1), d});
              }),
              "QUORIX:string:MustBeStringScalarOrCharacterVector");
    EXPECT_EQ(errorOf([&] { construct(cls, {Value::text(u"x")}); }), "QUORIX:class:NoMatchingSignature");
    EXPECT_EQ(errorOf([&] { construct("deckforge.ppt.Node", {}); }), "QUORIX:class:NoPublicConstructor");
    EXPECT_EQ(errorOf([&] { callMethod(ref(ObjectRef::State::Deleted, cls), cls, "formatAsText", {}); }),
              "QUORIX:class:InvalidHandle");
    EXPECT_EQ(errorOf([&] { setProperty(message, cls, "Text", Value::text(u"y")); }),
              "QUORIX:class:NoMatchingSignature");

    // The constructor of the singleton hands back the record that exists.
    EXPECT_EQ(construct("deckforge.ppt.MessageDispatcher", {}), d.object().object);
    ScriptObject::destroy(made);
}

TEST_F(Marshal, OptionalValuesAndLiveFilter) {
    MessageDispatcher& dispatcher = MessageDispatcher::getTheDispatcher();
    Value d = toScript(dispatcher);
    std::string const cls = "deckforge.ppt.MessageFilter";
    Value filter = getProperty(d, "deckforge.ppt.MessageDispatcher", "Filter");
    EXPECT_TRUE(getProperty(filter, cls, "GlobalFilter").isEmpty());
    setProperty(filter, cls, "GlobalFilter", Value::text(u""));
    Value blocked = getProperty(filter, cls, "GlobalFilter");
    EXPECT_EQ(blocked.className(), "char");
    setProperty(filter, cls, "GlobalFilter", Value());
    EXPECT_FALSE(dispatcher.getMessageFilter().getGlobalFilter().isSet());

    setProperty(filter, cls, "SourceFilter", d);
    EXPECT_TRUE(sameObject(getProperty(filter, cls, "SourceFilter"), d));
    HostTerminate_deckforge_ppt();  // drops the filter's hold on a script object
    EXPECT_TRUE(getProperty(filter, cls, "SourceFilter").isEmpty());
}

TEST_F(Marshal, EventsReachTheHostAndListenerErrorsPassThrough) {
    MessageDispatcher& dispatcher = MessageDispatcher::getTheDispatcher();
    toScript(dispatcher);
    dispatcher.dispatch(WarningMessage(u"w"));
    ASSERT_EQ(host.events.size(), 1u);
    EXPECT_EQ(host.events[0], "Message");
    EXPECT_EQ(host.eventData[0].object().object->impl()->getFullyQualifiedHobjTypeName(),
              std::string("deckforge.ppt.MessageEventData"));
    host.listenerThrows = true;
    EXPECT_THROW(dispatcher.dispatch(WarningMessage(u"x")), std::runtime_error);
    host.listenerThrows = false;
}

TEST_F(Marshal, OneBasedSubscripts) {
    EXPECT_EQ(checkedSubscript(Value::number(2)), 2);
    for (double bad : {0.0, -1.0, 1.5, double(NAN)})
        EXPECT_EQ(errorOf([&] { checkedSubscript(Value::number(bad)); }),
                  "deckforge:ppt_error:positiveSubscript");
    EXPECT_EQ(errorOf([] { checkedSubscript(Value::text(u"1")); }), "deckforge:ppt_error:positiveSubscript");
}

}  // namespace
