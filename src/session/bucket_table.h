#pragma once
// A decision node's range summed into the named hand buckets, with each bucket's action mix.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "poker/cards.h"
#include "session/solve_session.h"

namespace kelvane_app {

struct HandBucketRow {
    std::string name;
    double combos = 0.0;              // root weight of the hands that carry the name
    std::vector<float> action_probs;  // one for each action, summing to 1 where anything was played
};

struct HandBuckets {
    std::vector<HandBucketRow> rows;  // table order, empty buckets left out
    bool valid = false;
};

// Every weighted hand credits each of its names that has a row, "air" when none has; so rows may add
// up to more than the range. `strategy` is action-major over `pockets`.
std::vector<HandBucketRow> bucket_table(std::span<const kelvane::Card> board, std::span<const kelvane::Pocket> pockets,
                                        std::span<const float> weights, std::span<const float> strategy,
                                        std::size_t actions);

// The table of the acting seat's root range on the node's board.
HandBuckets hand_buckets(const SolveSession& session, std::uint64_t node);

}  // namespace kelvane_app
