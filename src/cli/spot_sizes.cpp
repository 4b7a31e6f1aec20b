// Refusing sizes that the sizing filter would rewrite.

#include "cli/spot_sizes.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string>
#include <string_view>

#include "cli/json_text.h"
#include "cli/spot_keys.h"

namespace kelvane_cli {
namespace {

constexpr std::string_view kSizeSymbols = "%.acerx";  // letters in either case

bool readable(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return std::isdigit(byte) ||
           kSizeSymbols.find(static_cast<char>(std::tolower(byte))) != std::string_view::npos;
}

std::string_view trimmed(std::string_view text) {
    const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

void check_sizes(const std::string& key, const std::string& text) {
    std::string_view rest = text;
    while (true) {
        const std::size_t comma = rest.find(',');
        const std::string_view size = trimmed(rest.substr(0, comma));
        if (!std::all_of(size.begin(), size.end(), readable))
            throw std::invalid_argument(key + " " + json_quoted(text) + ": size " +
                                        json_quoted(std::string(size)) +
                                        " has no reading in the sizing grammar");
        if (comma == std::string_view::npos) return;
        rest.remove_prefix(comma + 1);
    }
}

}  // namespace

void check_spot_sizes(const QJsonObject& spot) {
    for (const QString& key : sizing_text_keys())
        check_sizes(key.toStdString(), spot.value(key).toString().toStdString());
}

}  // namespace kelvane_cli
