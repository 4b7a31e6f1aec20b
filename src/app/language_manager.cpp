// The language switch: one translator for the whole process, replaced on every change.
#include "app/language_manager.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QSettings>
#include <QTranslator>
#include <QtDebug>
#include <memory>

namespace kelvane_app {
namespace {

constexpr char kEnglish[] = "en";

// The one translator of the process; QCoreApplication only borrows it.
std::unique_ptr<QTranslator>& translatorSlot() {
    static std::unique_ptr<QTranslator> slot;
    return slot;
}

bool isSystem(const QString& code) { return code == QLatin1String(kSystemLanguage); }

QLocale localeFor(const QString& code) { return isSystem(code) ? QLocale::system() : QLocale(code); }

void appendIfNew(QStringList& list, const QString& name) {
    if (list.isEmpty() || list.last() != name) list.append(name);
}

// Installs a fresh translator when one of the candidates loads; the slot keeps it either way.
bool loadTranslator(const QString& code) {
    std::unique_ptr<QTranslator>& slot = translatorSlot();
    if (slot) QCoreApplication::removeTranslator(slot.get());
    slot = std::make_unique<QTranslator>();
    if (code == QLatin1String(kEnglish)) return false;
    for (const QString& candidate : catalogueCandidates(code, QLocale::system())) {
        if (slot->load(QLatin1String(kCataloguePrefix) + candidate, QLatin1String(kCatalogueDirectory))) {
            QCoreApplication::installTranslator(slot.get());
            return true;
        }
    }
    return false;
}

}  // namespace

QString normalizedLanguageCode(const QString& code) {
    const QString trimmed = code.trimmed();
    if (trimmed.isEmpty() || trimmed.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0 ||
        trimmed.compare(QLatin1String(kSystemLanguage), Qt::CaseInsensitive) == 0) {
        return QLatin1String(kSystemLanguage);
    }
    return trimmed;
}

QStringList catalogueCandidates(const QString& code, const QLocale& systemLocale) {
    const QString name = isSystem(code) ? systemLocale.name() : QLocale(code).name();
    const QString language = name.section(QLatin1Char('_'), 0, 0);
    QStringList candidates;
    if (!isSystem(code)) candidates.append(code);
    appendIfNew(candidates, name);
    appendIfNew(candidates, language);
    return candidates;
}

LanguageManager::LanguageManager(QQmlEngine* engine, QObject* parent) : QObject(parent), m_engine(engine) {
    const QString saved =
        QSettings().value(QLatin1String(kLanguageSettingKey), QLatin1String(kSystemLanguage)).toString();
    apply(normalizedLanguageCode(saved), false);
}

void LanguageManager::setLanguage(QString code) { apply(normalizedLanguageCode(code), true); }

void LanguageManager::apply(const QString& code, bool persist) {
    if (code == m_currentLanguage) return;
    const bool loaded = loadTranslator(code);
    const QLocale locale = localeFor(code);
    QLocale::setDefault(locale);
    m_currentLanguage = code;
    if (persist) {
        QSettings settings;
        settings.setValue(QLatin1String(kLanguageSettingKey), code);
        settings.sync();
    }
    qInfo().noquote() << "Language set to" << code << "(translator" << (loaded ? "loaded" : "not loaded")
                      << ")";
    if (m_engine) {
        m_engine->setUiLanguage(locale.bcp47Name());
        m_engine->retranslate();
    }
    emit currentLanguageChanged();
}

}  // namespace kelvane_app
