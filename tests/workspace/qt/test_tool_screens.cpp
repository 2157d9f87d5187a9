// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Pictures of the client's tool windows for review, written to build/screens: the Function
// Library, the three Options pages and the print preview in two up, with the PDF that the
// previewed text prints to.
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "client_tools.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_window.h"
#include "function_library_dialog.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "options_sheet.h"
#include "preview_frame.h"
#include "workbench.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

QString ScreensFolder() {
    QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens"));
    return QStringLiteral(QUINDAR_BUILD_DIR "screens/");
}

// Saves the widget's picture and returns how many colours it has.
int SaveScreen(QWidget &widget, const QString &name) {
    QCoreApplication::processEvents();
    const QImage image = widget.grab().toImage();
    image.save(ScreensFolder() + name);
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3) colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

}  // namespace

class ToolScreens : public QObject {
    Q_OBJECT
private slots:
    void functionLibrary();
    void optionsPages();
    void previewAndItsPdf();
};

void ToolScreens::functionLibrary() {
    DesktopHarness harness;
    harness.Bench().Router().Execute(command::kFunctionLibrary);
    FunctionLibraryDialog &dialog = *client_tools_of(harness.Bench())->FunctionLibrary();
    for (QLineEdit *search : dialog.findChildren<QLineEdit *>())
        if (search->accessibleName() == QStringLiteral("Search"))
            QTest::keyClicks(search, QStringLiteral("QUADROOT1"));
    QVERIFY(SaveScreen(dialog, QStringLiteral("function-library.png")) > 4);
}

void ToolScreens::optionsPages() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    sheet.show();
    const char *names[] = {"options-precision.png", "options-mathematical.png",
                           "options-media-player.png"};
    for (int page = 0; page < 3; ++page) {
        sheet.Tabs().setCurrentIndex(page);
        QVERIFY(SaveScreen(sheet, QString::fromLatin1(names[page])) > 4);
    }
    sheet.reject();
}

void ToolScreens::previewAndItsPdf() {
    DesktopHarness harness;
    QStringList lines;
    lines << QStringLiteral("; Loan payments and a little geometry");
    for (int month = 1; month <= 150; ++month)
        lines << QStringLiteral("payment[%1] = 1000*0.005/(1-POW[1.005,-%1]) = %2")
                     .arg(month)
                     .arg(1000 * 0.005 / (1 - std::pow(1.005, -month)), 0, 'f', 6);
    harness.Current()->TextPane().SetDocumentText(lines.join(QStringLiteral("\r\n")).toStdString());
    int colours = 0;
    QTimer::singleShot(0, this, [&] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *preview = qobject_cast<PreviewFrame *>(window);
            if (preview == nullptr || !preview->isVisible()) continue;
            preview->resize(1100, 760);
            preview->TwoUpAction().trigger();
            colours = SaveScreen(*preview, QStringLiteral("print-preview.png"));
            preview->DoneAction().trigger();
        }
    });
    harness.Bench().Router().Execute(command::kFilePrintPreview);
    QVERIFY(colours > 4);
    const QString pdf = ScreensFolder() + QStringLiteral("printed-document.pdf");
    QFile::remove(pdf);
    harness.nextSaveFile = pdf;
    harness.Bench().Router().Execute(command::kExportPdf);
    QVERIFY(QFile::exists(pdf));
}

QTEST_MAIN(ToolScreens)
#include "test_tool_screens.moc"
