// Spot files for the subcommands that take one.

#include "cli/spot_file.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>
#include <string>

#include "app/solve_map.h"
#include "cli/json_text.h"
#include "cli/spot_board.h"
#include "cli/spot_keys.h"
#include "cli/spot_sizes.h"
#include "poker/range_text.h"

namespace kelvane_cli {
namespace {

[[noreturn]] void refuse(const QString& path, const std::string& reason) {
    throw std::runtime_error("Spot file '" + path.toStdString() + "' " + reason);
}

[[noreturn]] void cannot_read(const QString& path, const QFile& file) {
    throw std::runtime_error("Cannot read spot file '" + path.toStdString() + "': " + file.errorString().toStdString());
}

// At most one byte past the limit is read, so /dev/zero costs no more than a real file.
QJsonObject read_spot_object(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) cannot_read(path, file);
    const QByteArray bytes = file.read(kMaxSpotFileBytes + 1);
    if (bytes.size() > kMaxSpotFileBytes)
        refuse(path, "is larger than 1 MiB (" + std::to_string(kMaxSpotFileBytes) + " bytes)");
    if (file.error() != QFileDevice::NoError) cannot_read(path, file);
    QJsonParseError parse_error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parse_error);
    if (parse_error.error != QJsonParseError::NoError)
        refuse(path, "is not valid JSON: " + parse_error.errorString().toStdString() + " at offset " +
                         std::to_string(parse_error.offset));
    if (!document.isObject()) refuse(path, "must hold a JSON object");
    return document.object();
}

// The range parser's own words, with the key and text in front: the parser can't know which seat it read.
void check_range(const QJsonObject& spot, const char* key) {
    const std::string text = spot.value(QLatin1String(key)).toString().toStdString();
    try {
        kelvane::parse_range_or_percent(text);
    } catch (const std::exception& error) {
        throw std::invalid_argument(std::string(key) + " " + json_quoted(text) + ": " + error.what());
    }
}

}  // namespace

kelvane_app::SolveConfig read_spot_config(const QString& path) {
    const QJsonObject spot = read_spot_object(path);
    check_spot_keys(spot);
    const std::string street = spot_street(spot);
    check_range(spot, "oop_range");
    check_range(spot, "ip_range");
    check_spot_sizes(spot);
    kelvane_app::SolveConfig config = kelvane_app::solveConfigFromMap(spot.toVariantMap());
    config.starting_street = street;
    return config;
}

}  // namespace kelvane_cli
