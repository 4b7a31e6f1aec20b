// River trees against an independent brute-force expander that works in street totals, not stacks.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "plan_test_support.h"
#include "tree/action_plan.h"

namespace kelvane {
namespace {

using namespace plan_test;

struct Size {
    bool all_in = false;
    double fraction = 0.0;
};

std::vector<Size> sizes_of(std::string_view text) {
    std::vector<Size> sizes;
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        const std::string item(text.substr(0, comma));
        text = comma == std::string_view::npos ? std::string_view{} : text.substr(comma + 1);
        if (item == "a") {
            sizes.push_back({true, 0.0});
        } else {
            sizes.push_back({false, std::stod(item.substr(0, item.size() - 1)) / 100.0});
        }
    }
    return sizes;
}

std::string extend(const std::string& line, char letter, int amount) {
    std::string longer = line;
    if (!longer.empty()) longer += ' ';
    longer += letter;
    longer += std::to_string(amount);
    return longer;
}

struct RiverSpot {
    int pot = 0;
    int stack = 0;
    std::array<std::string, 2> bet_text;
    std::array<std::string, 2> raise_text;
};

class ReferenceExpander {
public:
    explicit ReferenceExpander(const RiverSpot& spot)
        : spot_(spot),
          bets_{sizes_of(spot.bet_text[0]), sizes_of(spot.bet_text[1])},
          raises_{sizes_of(spot.raise_text[0]), sizes_of(spot.raise_text[1])} {}

    std::vector<std::string> lines() {
        out_.clear();
        walk({0, 0}, 0, false, false, "");
        std::sort(out_.begin(), out_.end());
        return out_;
    }

private:
    // Wagers as (amount, letter), ascending, one per amount.
    std::vector<std::pair<int, char>> wagers(const std::array<int, 2>& total, int seat) const {
        const int other = 1 - seat;
        const int facing = total[other];
        std::vector<std::pair<int, char>> found;
        if (facing == total[seat]) {
            for (const Size& size : bets_[seat]) {
                const int wanted = size.all_in ? spot_.stack : static_cast<int>(std::llround(spot_.pot * size.fraction));
                const int amount = std::clamp(wanted, std::min(1, spot_.stack), spot_.stack);
                found.emplace_back(amount, amount == spot_.stack ? 'a' : 'b');
            }
        } else {
            const int smallest = std::min(2 * facing - total[seat], spot_.stack);
            for (const Size& size : raises_[seat]) {
                const int after_call = spot_.pot + 2 * facing;
                const int wanted =
                    size.all_in ? spot_.stack : static_cast<int>(std::llround(after_call * size.fraction)) + facing;
                const int amount = std::max(smallest, std::min(wanted, spot_.stack));
                found.emplace_back(amount, amount == spot_.stack ? 'a' : 'r');
            }
        }
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end(),
                                [](const auto& a, const auto& b) { return a.first == b.first; }),
                    found.end());
        return found;
    }

    void walk(std::array<int, 2> total, int seat, bool checked, bool all_in, const std::string& line) {
        const int other = 1 - seat;
        if (total[other] == total[seat]) {
            if (checked) {
                out_.push_back(extend(line, 'x', 0));
            } else {
                walk(total, other, seat == 0, false, extend(line, 'x', 0));
            }
        } else {
            out_.push_back(extend(line, 'f', 0));
            out_.push_back(extend(line, 'c', total[other] - total[seat]));
            if (all_in) return;
        }
        for (const auto& [amount, letter] : wagers(total, seat)) {
            std::array<int, 2> after = total;
            after[seat] = amount;
            walk(after, other, false, letter == 'a', extend(line, letter, amount));
        }
    }

    RiverSpot spot_;
    std::array<std::vector<Size>, 2> bets_;
    std::array<std::vector<Size>, 2> raises_;
    std::vector<std::string> out_;
};

void collect_lines(const ActionPlan& plan, std::uint64_t index, const std::string& line, std::vector<std::string>& out) {
    const PlanNode& node = plan.nodes()[index];
    if (node.children.empty()) {
        out.push_back(line);
        return;
    }
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        std::string longer = line;
        if (!longer.empty()) longer += ' ';
        longer += describe(node.actions[i]);
        collect_lines(plan, node.children[i], longer, out);
    }
}

std::vector<std::string> plan_lines(const RiverSpot& spot, const CardContext& cards) {
    const SizingProfile profile =
        make_profile(spot.bet_text[0], spot.raise_text[0], spot.bet_text[1], spot.raise_text[1]);
    const ActionPlan plan(make_config(kStreetRiver, spot.pot, spot.stack, profile), cards);
    std::vector<std::string> lines;
    collect_lines(plan, 0, "", lines);
    std::sort(lines.begin(), lines.end());
    return lines;
}

TEST(ActionPlanReference, RiverLinesMatchBruteForce) {
    const CardContext cards = make_cards("AhKsQd7c2d", "JJ,TT", "99,88");
    const std::vector<std::string> bet_lists{"33%", "50%,100%", "25%,75%,a"};
    const std::vector<std::string> raise_lists{"", "60%", "100%,a", "40%,250%"};
    std::size_t compared = 0;
    for (const int pot : {100, 37}) {
        for (const int stack : {60, 250, 1000}) {
            for (const std::string& bet_text : bet_lists) {
                for (const std::string& raise_text : raise_lists) {
                    const RiverSpot spot{pot, stack, {bet_text, bet_text}, {raise_text, raise_text}};
                    const std::vector<std::string> expected = ReferenceExpander(spot).lines();
                    ASSERT_EQ(plan_lines(spot, cards), expected)
                        << "pot " << pot << " stack " << stack << " bets " << bet_text << " raises " << raise_text;
                    compared += expected.size();
                }
            }
        }
    }
    EXPECT_GT(compared, 1000u);
}

TEST(ActionPlanReference, SeatsWithDifferentSizesMatchBruteForce) {
    const CardContext cards = make_cards("AhKsQd7c2d", "JJ,TT", "99,88");
    const RiverSpot spot{80, 400, {"50%", "33%,a"}, {"75%,a", "150%"}};
    EXPECT_EQ(plan_lines(spot, cards), ReferenceExpander(spot).lines());
}

}  // namespace
}  // namespace kelvane
