// Switches the interface language at run time by replacing the process's one translator.
#pragma once

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>

class QQmlEngine;

namespace kelvane_app {

inline constexpr char kSystemLanguage[] = "system";
inline constexpr char kLanguageSettingKey[] = "ui/language";
inline constexpr char kCatalogueDirectory[] = ":/Kelvane/i18n";
inline constexpr char kCataloguePrefix[] = "kelvane_";

// Trimmed code; empty, "auto" and "system" in any case all mean "system".
QString normalizedLanguageCode(const QString& code);

// Catalogue suffixes to try in order for a normalised code, with system_locale standing for "system".
QStringList catalogueCandidates(const QString& code, const QLocale& systemLocale);

class LanguageManager : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString currentLanguage READ currentLanguage NOTIFY currentLanguageChanged)

  public:
    // Applies the saved language at once, so the first document loads already translated.
    explicit LanguageManager(QQmlEngine* engine, QObject* parent = nullptr);

    QString currentLanguage() const { return m_currentLanguage; }

    Q_INVOKABLE void setLanguage(QString code);

  signals:
    void currentLanguageChanged();

  private:
    void apply(const QString& code, bool persist);

    QQmlEngine* m_engine;  // not owned; may be null
    QString m_currentLanguage = QLatin1String(kSystemLanguage);
};

}  // namespace kelvane_app
