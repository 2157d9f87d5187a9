// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Plays one program start for the single-instance tests.
//   single_instance_probe first NAME OUT COUNT   claims the name, prints "ready", appends each
//                                                request's file to OUT, ends after COUNT
//   single_instance_probe later NAME [FILE]      claims the name with FILE; exit status 0 when
//                                                it was handed over, 3 when it became the first
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <cstdio>

#include "single_instance.h"

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() >= 5 && args[1] == QLatin1String("first")) {
        quindar::SingleInstance instance(args[2]);
        if (!instance.claim(QString())) return 4;
        int left = args[4].toInt();
        QObject::connect(&instance, &quindar::SingleInstance::activationRequested, &app,
                         [&](const QString &file) {
                             QFile out(args[3]);
                             if (out.open(QIODevice::Append)) out.write((file + "\n").toUtf8());
                             if (--left == 0) app.quit();
                         });
        std::puts("ready");
        std::fflush(stdout);
        return app.exec();
    }
    if (args.size() >= 3 && args[1] == QLatin1String("later")) {
        quindar::SingleInstance instance(args[2]);
        return instance.claim(args.size() >= 4 ? args[3] : QString()) ? 3 : 0;
    }
    return 2;
}
