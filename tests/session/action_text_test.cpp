#include "session/action_text.h"

#include <gtest/gtest.h>

namespace kelvane_app {
namespace {

using kelvane::Action;

TEST(ActionText, UnsizedActions) {
    EXPECT_EQ(action_name({kelvane::kActionFold, 0}, 100), "Fold");
    EXPECT_EQ(action_type_text({kelvane::kActionFold, 0}, 100), "fold");
    EXPECT_EQ(action_name({kelvane::kActionCheck, 0}, 100), "Check");
    EXPECT_EQ(action_type_text({kelvane::kActionCheck, 0}, 100), "check");
    EXPECT_EQ(action_name({kelvane::kActionCall, 50}, 100), "Call");
    EXPECT_EQ(action_type_text({kelvane::kActionCall, 50}, 100), "call");
    EXPECT_EQ(action_name({kelvane::kActionAllIn, 400}, 100), "All-In");
    EXPECT_EQ(action_type_text({kelvane::kActionAllIn, 400}, 100), "allin");
}

TEST(ActionText, BetsAndRaisesArePercentOfTheBase) {
    EXPECT_EQ(action_name({kelvane::kActionBet, 75}, 100), "Bet 75%");
    EXPECT_EQ(action_type_text({kelvane::kActionBet, 75}, 100), "bet 75%");
    EXPECT_EQ(action_name({kelvane::kActionRaise, 300}, 200), "Raise 150%");
    EXPECT_EQ(action_type_text({kelvane::kActionRaise, 300}, 200), "raise 150%");
    // No decimals: 33 of 100 chips after rounding stays 33, 1 of 3 becomes 33.
    EXPECT_EQ(action_name({kelvane::kActionBet, 1}, 3), "Bet 33%");
    EXPECT_EQ(action_name({kelvane::kActionBet, 2}, 3), "Bet 67%");
}

TEST(ActionText, BaseBelowOneChipLeavesTheBareWord) {
    EXPECT_EQ(action_name({kelvane::kActionBet, 10}, 0.5), "Bet");
    EXPECT_EQ(action_type_text({kelvane::kActionBet, 10}, 0), "bet");
    EXPECT_EQ(action_name({kelvane::kActionRaise, 10}, -5), "Raise");
    EXPECT_EQ(action_type_text({kelvane::kActionRaise, 10}, 0), "raise");
    EXPECT_EQ(action_name({kelvane::kActionBet, 10}, 1), "Bet 1000%");
}

TEST(ActionText, ChanceShowsTheCard) {
    EXPECT_EQ(action_name({kelvane::kActionChance, kelvane::parse_card("Ah")}, 100), "Ah");
    EXPECT_EQ(action_type_text({kelvane::kActionChance, 0}, 100), "chance");
    EXPECT_EQ(action_name({kelvane::kActionChance, 0}, 100), "2c");
}

TEST(ActionText, UnknownKind) {
    EXPECT_EQ(action_name({kelvane::kActionNone, 0}, 100), "Action");
    EXPECT_EQ(action_type_text({kelvane::kActionNone, 0}, 100), "none");
    EXPECT_EQ(action_name({9, 0}, 100), "Action");
}

TEST(ActionText, PercentBasesMirrorEachOther) {
    EXPECT_EQ(root_percent_base(100, 40), 100.0);
    EXPECT_EQ(root_percent_base(0, 40), 40.0);
    EXPECT_EQ(root_percent_base(-3, 40), 40.0);
    EXPECT_EQ(node_percent_base(40, 100), 40.0);
    EXPECT_EQ(node_percent_base(0, 100), 100.0);
}

}  // namespace
}  // namespace kelvane_app
