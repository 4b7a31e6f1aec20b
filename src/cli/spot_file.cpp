// Spot files for the subcommands that take one.

#include "cli/spot_file.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>
#include <string>

namespace kelvane_cli {

QVariantMap read_spot_file(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("Cannot read spot file '" + path.toStdString() + "': " +
                                 file.errorString().toStdString());
    QJsonParseError parse_error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parse_error);
    if (parse_error.error != QJsonParseError::NoError)
        throw std::runtime_error("Spot file '" + path.toStdString() + "' is not valid JSON: " +
                                 parse_error.errorString().toStdString() + " at offset " +
                                 std::to_string(parse_error.offset));
    if (!document.isObject())
        throw std::runtime_error("Spot file '" + path.toStdString() + "' must hold a JSON object");
    return document.object().toVariantMap();
}

}  // namespace kelvane_cli
