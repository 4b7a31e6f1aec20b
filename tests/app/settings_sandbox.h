// Gives a test process a settings store of its own, so no test reads or writes the user's settings.
#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace kelvane_test {

// Call before the first QSettings of the process; the store lives until the process ends.
inline void use_private_settings_store() {
    static QTemporaryDir store;
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Orvanthis"));
    QCoreApplication::setApplicationName(QStringLiteral("Orvanthis"));
}

}  // namespace kelvane_test
