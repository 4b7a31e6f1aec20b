// Quoting and describing JSON values for messages.

#include "cli/json_text.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <charconv>
#include <cmath>

namespace kelvane_cli {
namespace {

std::string number_text(double value) {
    if (std::trunc(value) == value && std::abs(value) <= kExactWholeLimit)
        return std::to_string(static_cast<long long>(value));
    char text[32];
    return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
}

}  // namespace

std::string json_quoted(const std::string& text) {
    const QByteArray array =
        QJsonDocument(QJsonArray{QString::fromStdString(text)}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2).toStdString();  // the one element without its brackets
}

std::string describe_json(const QJsonValue& value) {
    switch (value.type()) {
        case QJsonValue::String:
            return json_quoted(value.toString().toStdString());
        case QJsonValue::Double:
            return number_text(value.toDouble());
        case QJsonValue::Bool:
            return value.toBool() ? "true" : "false";
        case QJsonValue::Array:
            return "an array";
        case QJsonValue::Object:
            return "an object";
        case QJsonValue::Null:
            return "null";
        case QJsonValue::Undefined:
            break;
    }
    return "nothing";
}

}  // namespace kelvane_cli
