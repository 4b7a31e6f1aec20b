// Writing the result file all or nothing.

#include "cli/output_file.h"

#include <QFileInfo>

#include <stdexcept>

#include "app/atomic_write.h"

namespace kelvane_cli {

OutputFile::OutputFile(const QString& path) : path_(path) {
    const QFileInfo target(path);
    // Renaming a temporary file over a device would replace the device itself.
    if (target.exists() && !target.isFile() && !target.isDir()) {
        device_ = std::make_unique<QFile>(path);
        if (!device_->open(QIODevice::WriteOnly)) fail(device_->errorString());
        return;
    }
    file_ = std::make_unique<QSaveFile>(path);
    if (!file_->open(QIODevice::WriteOnly)) fail(file_->errorString());
}

void OutputFile::write(const QByteArray& bytes) {
    if (file_) {
        const QString error = kelvane_app::commitAll(*file_, bytes);
        if (!error.isEmpty()) fail(error);
        return;
    }
    if (device_->write(bytes) != bytes.size() || !device_->flush()) fail(device_->errorString());
}

void OutputFile::fail(const QString& reason) const {
    throw std::runtime_error("cannot write '" + path_.toStdString() + "': " + reason.toStdString());
}

}  // namespace kelvane_cli
