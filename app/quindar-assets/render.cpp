// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Draws an SVG picture into a bitmap of a given size, in the format the output's name ends in:
// the splash picture and the desktop's icon sizes are made from drawings at build time.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    bool widthOk = false;
    bool heightOk = false;
    const int width = args.value(3).toInt(&widthOk);
    const int height = args.value(4).toInt(&heightOk);
    if (args.size() != 5 || !widthOk || !heightOk || width <= 0 || height <= 0) {
        std::fprintf(stderr, "Usage: quindar-render DRAWING.svg OUTPUT WIDTH HEIGHT\n");
        return 2;
    }
    QSvgRenderer drawing(args[1]);
    if (!drawing.isValid()) {
        std::fprintf(stderr, "quindar-render: cannot read \"%s\"\n", qPrintable(args[1]));
        return 1;
    }
    const bool opaque = args[2].endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive);
    QImage image(width, height, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    image.fill(opaque ? Qt::white : Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    // Written beside the target and renamed, so a failed run leaves no half picture.
    const QString part = args[2] + QStringLiteral(".part");
    const bool saved = image.save(part, opaque ? "BMP" : "PNG");
    if (saved) QFile::remove(args[2]);
    if (!saved || !QFile::rename(part, args[2])) {
        QFile::remove(part);
        std::fprintf(stderr, "quindar-render: cannot write \"%s\"\n", qPrintable(args[2]));
        return 1;
    }
    return 0;
}
