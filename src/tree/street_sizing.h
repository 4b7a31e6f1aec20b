#pragma once
// The sizes one seat may use on one street, as the user typed them.

#include <string>

namespace kelvane {

struct StreetSizing {
    std::string bet_sizes;
    std::string raise_sizes;
    bool add_all_in = false;
    bool dont_donk = false;  // read for the out-of-position seat only
};

}  // namespace kelvane
