// Writing a whole file through QSaveFile so that any failure leaves the previous file as it was.
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace kelvane_app {

// Writes the bytes to an open save file and commits them. Returns the device's error text, or an empty text
// when the file was replaced.
QString commitAll(QSaveFile& file, const QByteArray& bytes);

}  // namespace kelvane_app
