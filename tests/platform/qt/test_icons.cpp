// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace quindar {
namespace {

const QString kIcons = QStringLiteral(QUINDAR_SOURCE_DIR "/resources/icons");

// Every command of the menus and the tool bar that shows a picture, the list windows'
// pop-ups, the program, the document window, the managers and the background tile.
const int kIconIds[] = {
    24331, 24332, 24339, 24333, 24340, 24337, 24338, 24310, 24386, 24391, 24387, 24388,
    24393, 24389, 18031, 24394, 24395, 24392, 24321, 24322, 24323, 24324, 24326, 24325,
    24351, 24352, 24353, 24382, 24381, 32040, 24385, 24383, 24384, 31581, 31589, 30581,
    30589, 21553, 21817, 25130, 20600, 20619, 20618, 20630, 20631, 20632, 20633, 20634,
    20635, 20636, 20625, 20622, 20617, 20637, 20638, 20639, 20640, 24361, 24362, 24371,
    24370, 24368, 24369, 24364, 24365, 31584, 31588, 31579, 24199, 24375, 24376, 30584,
    30588, 30591, 30590, 24390, 1001,  1002,  1003,  1079,
};

TEST(Icons, EveryIconIsThereAndDraws) {
    for (int id : kIconIds) {
        const QString path = QDir(kIcons).filePath(QString::number(id) + ".svg");
        QSvgRenderer renderer(path);
        ASSERT_TRUE(renderer.isValid()) << id;
        const QSize size = renderer.defaultSize();
        EXPECT_EQ(size, id == 1079 ? QSize(64, 64) : QSize(24, 24)) << id;
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        int inked = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) inked += qAlpha(image.pixel(x, y)) > 0;
        }
        EXPECT_GT(inked, image.width() * image.height() / 10) << id << " is nearly empty";
    }
}

TEST(Icons, NoIconWithoutACommand) {
    const QStringList files = QDir(kIcons).entryList({"*.svg"}, QDir::Files);
    EXPECT_EQ(files.size(), static_cast<int>(std::size(kIconIds)));
    for (const QString &file : files) {
        const int id = file.chopped(4).toInt();
        EXPECT_NE(std::find(std::begin(kIconIds), std::end(kIconIds), id), std::end(kIconIds))
            << file.toStdString();
    }
}

}  // namespace
}  // namespace quindar
