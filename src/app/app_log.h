// The process log: every line goes to two files, one beside the executable and one in the temporary
// directory.
#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <string_view>

namespace kelvane_app {

inline constexpr char log_file_name[] = "orvanthis.log";

// "DEBUG", "INFO", "WARN", "ERROR" or "FATAL".
const char* level_word(QtMsgType type);

// Local date and time with milliseconds, no zone: yyyy-MM-ddTHH:mm:ss.zzz.
QString log_timestamp(const QDateTime& time);

// The time stamp, " [", the level word, "] " and the message.
QString log_line(const QDateTime& time, QtMsgType type, const QString& message);

// Appends the line to the application log and then to the temporary log with plain system calls. Takes no
// lock and needs no event loop, so crash hooks use it too.
void append_to_both(std::string_view line) noexcept;

// Qt's message handler: writes through the open log files, or through append_to_both when none is open.
// Aborts on a fatal message.
void log_message_handler(QtMsgType type, const QMessageLogContext& context, const QString& message);

// Owns the two log file objects. Construction fixes the paths that append_to_both and the crash hooks
// write to, for the rest of the process; the files join the message handler's list only when opened.
class AppLog {
  public:
    AppLog(const QString& app_dir, const QString& temp_dir);
    ~AppLog();
    AppLog(const AppLog&) = delete;
    AppLog& operator=(const AppLog&) = delete;

    // Opens each file for appending; those that open take the message handler's lines.
    void open();
    std::size_t open_count() const;

    QString app_log_path() const { return app_file_.fileName(); }
    QString temp_log_path() const { return temp_file_.fileName(); }

  private:
    QFile app_file_;
    QFile temp_file_;
};

}  // namespace kelvane_app
