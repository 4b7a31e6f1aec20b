// The turn spot of bench/spots/turn.json solved to depth: with exact showdowns nothing is left over
// for a best response to find.

#include <gtest/gtest.h>

#include "solver/discounted_cfr.h"
#include "solver_spots.h"
#include "spot_file.h"

namespace kelvane {
namespace {

TEST(TurnSpot, FallsBelowATwentiethOfAPercentOfThePotWithinAThousandIterations) {
    auto game = testing::SpotFile(testing::spot_path("turn")).game();
    DiscountedCfrOptions options = testing::quiet_options(1000, 2);
    options.target_exploitability = 0.0005f * game->config().starting_pot;
    DiscountedCfr cfr(options);
    cfr.solve(*game);
    EXPECT_LT(cfr.last_exploitability(), 0.0005f * game->config().starting_pot);
    EXPECT_GE(cfr.last_exploitability(), 0.0f);
    const SeatValues ev = cfr.average_strategy_values(*game);
    EXPECT_NEAR(static_cast<double>(ev[0]) + ev[1], 0.0, 0.01);
}

}  // namespace
}  // namespace kelvane
