// Tests of the language switch: start-up rule, catalogues of every locale, English, "system" and the store.
#include "app/language_manager.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

#include "settings_sandbox.h"

using kelvane_app::LanguageManager;

namespace {

// The system locale of this test process: Austrian German, which has no catalogue of its own.
constexpr char kSystemLocaleEnv[] = "de_AT.UTF-8";

QString translatedReady() { return QCoreApplication::translate("AppController", "Ready"); }

QVariant savedLanguage() { return QSettings().value(QStringLiteral("ui/language")); }

void saveLanguage(const QVariant& code) {
    QSettings settings;
    if (code.isNull()) {
        settings.remove(QStringLiteral("ui/language"));
    } else {
        settings.setValue(QStringLiteral("ui/language"), code);
    }
}

}  // namespace

class LanguageManagerTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { qputenv("LC_ALL", kSystemLocaleEnv); }

  private slots:
    void initTestCase() {
        kelvane_test::use_private_settings_store();
        QVERIFY(QFile::exists(QStringLiteral(":/Kelvane/i18n/kelvane_pt_BR.qm")));
        QCOMPARE(QLocale::system().name(), QStringLiteral("de_AT"));
    }

    // These three run first, while the process has never had a translator.
    void startupWithoutSettingLoadsNothing() {
        saveLanguage(QVariant());
        const QLocale before;
        LanguageManager manager(nullptr);
        QCOMPARE(manager.currentLanguage(), QStringLiteral("system"));
        QCOMPARE(translatedReady(), QStringLiteral("Ready"));
        QCOMPARE(QLocale().name(), before.name());
        QVERIFY(savedLanguage().isNull());
    }

    void startupWithSystemOrAutoLoadsNothing() {
        for (const QString& saved :
             {QStringLiteral("system"), QStringLiteral(" Auto "), QStringLiteral("")}) {
            saveLanguage(saved);
            LanguageManager manager(nullptr);
            QCOMPARE(manager.currentLanguage(), QStringLiteral("system"));
            QCOMPARE(translatedReady(), QStringLiteral("Ready"));
            QCOMPARE(savedLanguage().toString(), saved);
        }
    }

    void startupAppliesSavedLanguageWithoutWriting() {
        saveLanguage(QStringLiteral("fr"));
        QTest::ignoreMessage(QtInfoMsg, "Language set to fr (translator loaded )");
        LanguageManager manager(nullptr);
        QCOMPARE(manager.currentLanguage(), QStringLiteral("fr"));
        QCOMPARE(translatedReady(), QStringLiteral("Prêt"));
        QCOMPARE(QLocale().name(), QStringLiteral("fr_FR"));
        QCOMPARE(savedLanguage().toString(), QStringLiteral("fr"));
    }

    void eachLocaleLoadsItsCatalogue_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("ready");
        QTest::addColumn<QString>("twoPair");
        QTest::addColumn<QString>("localeName");
        QTest::newRow("de") << "de"
                            << "Bereit"
                            << "Zwei Paare"
                            << "de_DE";
        QTest::newRow("es") << "es"
                            << "Listo"
                            << "doble pareja"
                            << "es_ES";
        QTest::newRow("fr") << "fr"
                            << "Prêt"
                            << "double paire"
                            << "fr_FR";
        QTest::newRow("it") << "it"
                            << "Pronto"
                            << "doppia coppia"
                            << "it_IT";
        QTest::newRow("pl") << "pl"
                            << "Gotowe"
                            << "dwie pary"
                            << "pl_PL";
        QTest::newRow("pt_BR") << "pt_BR"
                               << "Pronto"
                               << "dois pares"
                               << "pt_BR";
        QTest::newRow("ru") << "ru"
                            << "Готово"
                            << "две пары"
                            << "ru_RU";
    }

    void eachLocaleLoadsItsCatalogue() {
        QFETCH(QString, code);
        QFETCH(QString, ready);
        QFETCH(QString, twoPair);
        QFETCH(QString, localeName);
        saveLanguage(QStringLiteral("en"));
        LanguageManager manager(nullptr);
        QCOMPARE(translatedReady(), QStringLiteral("Ready"));
        QSignalSpy changed(&manager, &LanguageManager::currentLanguageChanged);
        QTest::ignoreMessage(QtInfoMsg,
                             qPrintable(QStringLiteral("Language set to %1 (translator loaded )").arg(code)));
        manager.setLanguage(code);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(manager.currentLanguage(), code);
        QCOMPARE(translatedReady(), ready);
        QCOMPARE(QCoreApplication::translate("HandBuckets", "two pair"), twoPair);
        QCOMPARE(QLocale().name(), localeName);
        QCOMPARE(savedLanguage().toString(), code);
    }

    void englishRemovesTheTranslator() {
        saveLanguage(QStringLiteral("de"));
        LanguageManager manager(nullptr);
        QCOMPARE(translatedReady(), QStringLiteral("Bereit"));
        QTest::ignoreMessage(QtInfoMsg, "Language set to en (translator not loaded )");
        manager.setLanguage(QStringLiteral("en"));
        QCOMPARE(manager.currentLanguage(), QStringLiteral("en"));
        QCOMPARE(translatedReady(), QStringLiteral("Ready"));
        QCOMPARE(QLocale().name(), QStringLiteral("en_US"));
        QCOMPARE(savedLanguage().toString(), QStringLiteral("en"));
    }

    void theCurrentCodeDoesNothing() {
        saveLanguage(QStringLiteral("it"));
        LanguageManager manager(nullptr);
        saveLanguage(QStringLiteral("marker"));
        QSignalSpy changed(&manager, &LanguageManager::currentLanguageChanged);
        manager.setLanguage(QStringLiteral(" it "));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(savedLanguage().toString(), QStringLiteral("marker"));
        QCOMPARE(translatedReady(), QStringLiteral("Pronto"));
    }

    void emptyAndAutoMeanSystem() {
        for (const QString& code : {QStringLiteral(""), QStringLiteral("AUTO"), QStringLiteral("System")}) {
            saveLanguage(QStringLiteral("en"));
            LanguageManager manager(nullptr);
            manager.setLanguage(code);
            QCOMPARE(manager.currentLanguage(), QStringLiteral("system"));
            QCOMPARE(savedLanguage().toString(), QStringLiteral("system"));
        }
    }

    void choosingSystemLoadsTheSystemLanguage() {
        saveLanguage(QStringLiteral("ru"));
        LanguageManager manager(nullptr);
        QCOMPARE(translatedReady(), QStringLiteral("Готово"));
        QTest::ignoreMessage(QtInfoMsg, "Language set to system (translator loaded )");
        manager.setLanguage(QStringLiteral("system"));
        QCOMPARE(translatedReady(), QStringLiteral("Bereit"));
        QCOMPARE(QLocale().name(), QStringLiteral("de_AT"));
    }

    void anUnknownCodeIsStoredAsGiven() {
        saveLanguage(QStringLiteral("es"));
        LanguageManager manager(nullptr);
        QTest::ignoreMessage(QtInfoMsg, "Language set to Klingon (translator not loaded )");
        manager.setLanguage(QStringLiteral("Klingon"));
        QCOMPARE(manager.currentLanguage(), QStringLiteral("Klingon"));
        QCOMPARE(translatedReady(), QStringLiteral("Ready"));
        QCOMPARE(savedLanguage().toString(), QStringLiteral("Klingon"));
    }

    void candidateNames() {
        using kelvane_app::catalogueCandidates;
        const QLocale austrian(QStringLiteral("de_AT"));
        QCOMPARE(catalogueCandidates(QStringLiteral("pt_BR"), austrian), QStringList({"pt_BR", "pt"}));
        QCOMPARE(catalogueCandidates(QStringLiteral("de"), austrian), QStringList({"de", "de_DE", "de"}));
        QCOMPARE(catalogueCandidates(QStringLiteral("system"), austrian), QStringList({"de_AT", "de"}));
        QCOMPARE(catalogueCandidates(QStringLiteral("system"), QLocale(QStringLiteral("pl_PL"))),
                 QStringList({"pl_PL", "pl"}));
    }

    void normalisedCodes() {
        using kelvane_app::normalizedLanguageCode;
        QCOMPARE(normalizedLanguageCode(QStringLiteral("  ")), QStringLiteral("system"));
        QCOMPARE(normalizedLanguageCode(QStringLiteral("aUtO")), QStringLiteral("system"));
        QCOMPARE(normalizedLanguageCode(QStringLiteral(" SYSTEM ")), QStringLiteral("system"));
        QCOMPARE(normalizedLanguageCode(QStringLiteral(" pt_BR ")), QStringLiteral("pt_BR"));
        QCOMPARE(normalizedLanguageCode(QStringLiteral("DE")), QStringLiteral("DE"));
    }

    void theEngineRetranslatesItsBindings() {
        saveLanguage(QStringLiteral("en"));
        QQmlEngine engine;
        LanguageManager manager(&engine);
        QQmlComponent component(&engine);
        component.setData(
            "import QtQuick\nQtObject { property string text: qsTranslate(\"AppController\", \"Ready\") }",
            QUrl());
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QCOMPARE(object->property("text").toString(), QStringLiteral("Ready"));
        manager.setLanguage(QStringLiteral("pt_BR"));
        // Qt's BCP 47 name leaves out a region that the language implies.
        QCOMPARE(engine.uiLanguage(), QStringLiteral("pt"));
        QCOMPARE(object->property("text").toString(), QStringLiteral("Pronto"));
        manager.setLanguage(QStringLiteral("system"));
        QCOMPARE(engine.uiLanguage(), QStringLiteral("de-AT"));
        QCOMPARE(object->property("text").toString(), QStringLiteral("Bereit"));
        manager.setLanguage(QStringLiteral("en"));
        QCOMPARE(object->property("text").toString(), QStringLiteral("Ready"));
    }
};

QTEST_MAIN(LanguageManagerTest)
#include "language_manager_test.moc"
