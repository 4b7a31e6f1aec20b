#pragma once
// The file that `solve --output` writes its JSON to.

#include <QFile>
#include <QSaveFile>
#include <QString>

#include <memory>

namespace kelvane_cli {

// Opened before the solve, so that a path that can't be written fails at once rather than after the
// work. A file is replaced in one step at the end (a temporary file beside it, flushed, then renamed
// over it), so a failed write leaves what was there; a device or named pipe, such as /dev/null, has no
// contents to keep and is written directly.
class OutputFile {
  public:
    // Throws std::runtime_error naming the path and the reason.
    explicit OutputFile(const QString& path);

    // Throws std::runtime_error naming the path and the reason when the bytes don't all reach the file.
    void write(const QByteArray& bytes);

  private:
    [[noreturn]] void fail(const QString& reason) const;

    QString path_;
    std::unique_ptr<QSaveFile> file_;
    std::unique_ptr<QFile> device_;
};

}  // namespace kelvane_cli
