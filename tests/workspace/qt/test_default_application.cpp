// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The desktop's default programs: the Exec line of a desktop entry, and the lookup of a MIME
// type through the user's and the system's association files.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "default_application.h"

using namespace quindar;

namespace {

void WriteFile(const QString &path, const QByteArray &text) {
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

}  // namespace

class DefaultApplications : public QObject {
    Q_OBJECT
private slots:
    void execLine_data();
    void execLine();
    void lookupOrder();
};

void DefaultApplications::execLine_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("plain") << "[Desktop Entry]\nExec=gedit %U\n"
                           << "gedit" << QStringList{};
    QTest::newRow("arguments kept") << "[Desktop Entry]\nExec=kate -b %F\n"
                                    << "kate" << QStringList{"-b"};
    QTest::newRow("quoted program") << "[Desktop Entry]\nExec=\"/opt/My Editor/ed\" --new %f\n"
                                    << "/opt/My Editor/ed" << QStringList{"--new"};
    QTest::newRow("escaped quote") << "[Desktop Entry]\nExec=ed \"a\\\"b\" %u\n"
                                   << "ed" << QStringList{"a\"b"};
    QTest::newRow("percent kept") << "[Desktop Entry]\nExec=ed --width=50%% %f\n"
                                  << "ed" << QStringList{"--width=50%"};
    QTest::newRow("empty quoted argument") << "[Desktop Entry]\nExec=ed \"\" %f\n"
                                           << "ed" << QStringList{""};
    QTest::newRow("action section ignored")
        << "[Desktop Action new]\nExec=other\n[Desktop Entry]\nName=x\nExec=ed\n"
        << "ed" << QStringList{};
    QTest::newRow("no exec line") << "[Desktop Entry]\nName=x\n"
                                  << "" << QStringList{};
    QTest::newRow("only field codes") << "[Desktop Entry]\nExec=%f %U\n"
                                      << "" << QStringList{};
    QTest::newRow("unclosed quote") << "[Desktop Entry]\nExec=\"ed -x\n"
                                    << "ed -x" << QStringList{};
    QTest::newRow("nothing") << ""
                             << "" << QStringList{};
}

void DefaultApplications::execLine() {
    QFETCH(QString, entry);
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const DefaultApplication application = parse_desktop_exec(entry);
    QCOMPARE(application.program, program);
    QCOMPARE(application.arguments, arguments);
}

void DefaultApplications::lookupOrder() {
    QTemporaryDir home;
    const QString user = home.path() + QStringLiteral("/data/applications/");
    const QString system = home.path() + QStringLiteral("/system/applications/");
    WriteFile(user + QStringLiteral("mine.desktop"), "[Desktop Entry]\nExec=/bin/true --mine %f\n");
    WriteFile(system + QStringLiteral("theirs.desktop"),
              "[Desktop Entry]\nExec=/bin/true --theirs %f\n");
    WriteFile(system + QStringLiteral("mimeinfo.cache"),
              "[MIME Cache]\ntext/plain=theirs.desktop;\n");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path() + QStringLiteral("/config")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(home.path() + QStringLiteral("/none")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path() + QStringLiteral("/data")));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(home.path() + QStringLiteral("/system")));
    qunsetenv("XDG_CURRENT_DESKTOP");
    // Only the installed programs' cache knows the type.
    QCOMPARE(default_application_for(QStringLiteral("text/plain")).arguments,
             QStringList{"--theirs"});
    QVERIFY(default_application_for(QStringLiteral("image/png")).program.isEmpty());
    // The user's choice wins; an entry that is not installed is passed over.
    WriteFile(home.path() + QStringLiteral("/config/mimeapps.list"),
              "[Added Associations]\ntext/plain=theirs.desktop;\n"
              "[Default Applications]\ntext/plain=gone.desktop;mine.desktop\n");
    const DefaultApplication chosen = default_application_for(QStringLiteral("text/plain"));
    QCOMPARE(chosen.program, QStringLiteral("/bin/true"));
    QCOMPARE(chosen.arguments, QStringList{"--mine"});
    // A program that is not on the PATH is no default.
    WriteFile(user + QStringLiteral("mine.desktop"),
              "[Desktop Entry]\nExec=no-such-program-here %f\n");
    QVERIFY(default_application_for(QStringLiteral("text/plain")).program.isEmpty());
}

QTEST_MAIN(DefaultApplications)
#include "test_default_application.moc"
