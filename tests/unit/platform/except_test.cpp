#include <gtest/gtest.h>

#include "platform/msg_ids.h"

using namespace deckforge;

TEST(Except, IdentifierJoinsCatalogueAndId) {
    try {
        raise<ppt_error::cannotOpenFile>(u"x");
        FAIL();
    } catch (foundation::core::except::IMsgIDException const& e) {
        EXPECT_EQ(e.identifier(), "deckforge:ppt_error:cannotOpenFile");
        ASSERT_EQ(e.arguments().size(), 1u);
    }
}
