#pragma once
// Runs the real orvanthis-cli as a process and keeps what it wrote.

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace cli_test {

inline const QString kSpotDir = QStringLiteral(KELVANE_SOURCE_DIR "/bench/spots/");

struct CliRun {
    int exit_code = -1;  // -1 when the process crashed
    QByteArray out;
    QByteArray err;
    QJsonObject json;  // standard output read as one JSON object
};

inline CliRun run_cli(const QStringList& args) {
    QProcess process;
    process.start(QStringLiteral(ORVANTHIS_CLI), args);
    EXPECT_TRUE(process.waitForFinished(120000));
    CliRun run;
    run.exit_code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    run.json = QJsonDocument::fromJson(run.out).object();
    return run;
}

inline QStringList lines_of(const QByteArray& text) {
    return QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts);
}

}  // namespace cli_test
