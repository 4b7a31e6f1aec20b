// The two-file log and the Qt message handler that feeds it.
#include "app/app_log.h"

#include <QDir>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <string>
#include <vector>

#include "app/platform.h"

namespace kelvane_app {
namespace {

// Kept as plain byte strings so that crash hooks can write without touching Qt.
std::string log_app_path;
std::string log_temp_path;

std::vector<QFile*> open_logs;
std::mutex log_mutex;

std::string utf8_path(const QString& path) { return path.toUtf8().toStdString(); }

}  // namespace

const char* level_word(QtMsgType type) {
    switch (type) {
        case QtDebugMsg:
            return "DEBUG";
        case QtWarningMsg:
            return "WARN";
        case QtCriticalMsg:
            return "ERROR";
        case QtFatalMsg:
            return "FATAL";
        default:
            return "INFO";
    }
}

QString log_timestamp(const QDateTime& time) { return time.toString(Qt::ISODateWithMs); }

QString log_line(const QDateTime& time, QtMsgType type, const QString& message) {
    return log_timestamp(time) + QStringLiteral(" [") + QLatin1String(level_word(type)) +
           QStringLiteral("] ") + message;
}

void append_to_both(std::string_view line) noexcept {
    platform::append_line(line, log_app_path.c_str());
    platform::append_line(line, log_temp_path.c_str());
}

void log_message_handler(QtMsgType type, const QMessageLogContext&, const QString& message) {
    const QDateTime now = QDateTime::currentDateTime();
    std::unique_lock lock(log_mutex);
    if (open_logs.empty()) {
        lock.unlock();
        append_to_both(log_line(now, type, message).toUtf8().toStdString());
        if (type == QtFatalMsg) std::abort();
        return;
    }
    const QString timestamp = log_timestamp(now);
    const char* level = level_word(type);
    for (QFile* file : open_logs) {
        if (!file->isOpen()) continue;
        QTextStream out(file);
        out << timestamp << " [" << level << "] " << message << '\n';
        // Every line reaches the disk at once, so a crash loses nothing.
        out.flush();
    }
    if (type == QtFatalMsg) std::abort();
}

AppLog::AppLog(const QString& app_dir, const QString& temp_dir)
    : app_file_(app_dir + QDir::separator() + QLatin1String(log_file_name)),
      temp_file_(temp_dir + QDir::separator() + QLatin1String(log_file_name)) {
    log_app_path = utf8_path(app_file_.fileName());
    log_temp_path = utf8_path(temp_file_.fileName());
}

// The paths stay for the crash hooks; only the file objects leave the handler's list.
AppLog::~AppLog() {
    const std::lock_guard lock(log_mutex);
    std::erase_if(open_logs, [this](const QFile* file) { return file == &app_file_ || file == &temp_file_; });
}

void AppLog::open() {
    const std::lock_guard lock(log_mutex);
    for (QFile* file : {&app_file_, &temp_file_}) {
        if (file->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) open_logs.push_back(file);
    }
}

std::size_t AppLog::open_count() const {
    const std::lock_guard lock(log_mutex);
    return open_logs.size();
}

}  // namespace kelvane_app
