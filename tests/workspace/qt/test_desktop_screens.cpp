// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Pictures of the main window for review, written to build/screens: with no document (short
// tool bar) and with two documents and computed lines (long tool bar).
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QSet>
#include <QTest>

#include "desktop_harness.h"
#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

// Saves the frame's picture and returns how many colours it has.
int SaveScreen(MainFrame &frame, const QString &name) {
    QCoreApplication::processEvents();
    frame.IdleAction();
    const QImage image = frame.grab().toImage();
    QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens"));
    image.save(QStringLiteral(QUINDAR_BUILD_DIR "screens/") + name);
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4) colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

}  // namespace

class DesktopScreens : public QObject {
    Q_OBJECT
private slots:
    void mainWindowPictures();
};

void DesktopScreens::mainWindowPictures() {
    DesktopHarness harness;
    harness.Frame().resize(1280, 800);
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane,
             QStringLiteral("2+3\nx = 0.1+0.2\nf[t] = t^2 + x\nf[3]\n(1+2i)*(3-i)\nSQRT[-4]\n"));
    harness.Client().NewDocument();
    harness.Client().Activate(0);
    QVERIFY(SaveScreen(harness.Frame(), QStringLiteral("main-window.png")) > 4);
    harness.boxes.Expect(QStringLiteral("The text in the Math Editor file has changed."), kIdNo);
    harness.Client().CloseAllDocuments();
    QCOMPARE(harness.Client().Count(), 0);
    QVERIFY(SaveScreen(harness.Frame(), QStringLiteral("main-window-empty.png")) > 4);
}

QTEST_MAIN(DesktopScreens)
#include "test_desktop_screens.moc"
