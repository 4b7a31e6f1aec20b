// Text files chosen by the user, text from the program's own resources, and the bundled license notices.
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QtDebug>

#include "app/app_controller.h"
#include "app/atomic_write.h"

namespace kelvane_app {
namespace {

constexpr qint64 kReadTextLimitBytes = 2 * 1024 * 1024;
constexpr char kLicensesFolder[] = "licenses";
constexpr char kThirdPartyNotices[] = "licenses/THIRD_PARTY_NOTICES.txt";

QString translated(const char* source) { return QCoreApplication::translate("AppController", source); }

QVariantMap fileAnswer(bool ok, const QString& error) { return {{"ok", ok}, {"error", error}}; }

QVariantMap readAnswer(const QString& error) {
    return {{"ok", false}, {"error", error}, {"text", QString()}};
}

// ":/..." for a resource URL, a rooted path or a resource path; anything else is not a resource.
QString resourcePath(const QString& path) {
    QString resource = path.trimmed();
    if (resource.startsWith(QLatin1String("qrc:/"))) {
        resource.replace(0, 4, QLatin1String(":"));
    } else if (resource.startsWith(QLatin1Char('/'))) {
        resource.prepend(QLatin1Char(':'));
    }
    return resource;
}

void openBesideExecutable(const char* relativePath) {
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(relativePath));
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

}  // namespace

QVariantMap AppController::readTextFile(QUrl fileUrl) const {
    if (!fileUrl.isValid()) return readAnswer(QStringLiteral("Invalid file URL."));
    if (!fileUrl.isLocalFile()) return readAnswer(QStringLiteral("Only local files are supported."));
    const QString path = fileUrl.toLocalFile();
    if (path.trimmed().isEmpty()) return readAnswer(QStringLiteral("Empty file path."));
    QFile file(path);
    if (!file.exists()) return readAnswer(QStringLiteral("File does not exist."));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return readAnswer(QStringLiteral("Failed to open file: %1").arg(file.errorString()));
    if (file.size() > kReadTextLimitBytes)
        return readAnswer(QStringLiteral("File is too large (%1 bytes).").arg(file.size()));
    return {{"ok", true}, {"error", QString()}, {"text", QString::fromUtf8(file.readAll())}};
}

QVariantMap AppController::saveTextFile(QUrl fileUrl, QString text) const {
    if (!fileUrl.isValid() || !fileUrl.isLocalFile())
        return fileAnswer(false,
                          translated(QT_TRANSLATE_NOOP("AppController", "Invalid/non-local file URL")));
    const QString path = fileUrl.toLocalFile();
    if (path.isEmpty())
        return fileAnswer(false, translated(QT_TRANSLATE_NOOP("AppController", "Empty file path")));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return fileAnswer(false, translated(QT_TRANSLATE_NOOP("AppController", "Failed to open file: %1"))
                                     .arg(file.errorString()));
    const QString error = commitAll(file, text.toUtf8());
    if (!error.isEmpty())
        return fileAnswer(
            false, translated(QT_TRANSLATE_NOOP("AppController", "Failed to save file: %1")).arg(error));
    return fileAnswer(true, QString());
}

QString AppController::readTextResource(QString path) const {
    const QString resource = resourcePath(path);
    if (!resource.startsWith(QLatin1String(":/"))) {
        qWarning().noquote() << "readTextResource: not a Qt resource path:" << resource;
        return {};
    }
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning().noquote() << "readTextResource: failed to open:" << resource;
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

void AppController::openLicensesFolder() const { openBesideExecutable(kLicensesFolder); }

void AppController::openThirdPartyNotices() const { openBesideExecutable(kThirdPartyNotices); }

}  // namespace kelvane_app
