// SPDX-License-Identifier: MIT
// Renders the sample windows to pictures, PDF and SVG, to be judged by eye: velmor_gallery FOLDER.
#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

#include "desktop/control_painter.h"
#include "desktop/drawing_export.h"
#include "desktop/painted_sheet.h"

namespace velmor::test {

void savePicture(const host::Window& window, const desktop::Inks& inks, double scale, double ratio, const QString& path)
{
    desktop::View view;
    view.pixelsPerTwip = scale / desktop::twipsPerUnit;
    view.inks = &inks;
    const host::Place& place = window.spec().place;
    const QSizeF size = QSizeF(place.width, place.height) * view.pixelsPerTwip * ratio;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    desktop::paintWindow(painter, window, view);
    painter.end();
    image.save(path);
}

} // namespace velmor::test

int main(int argc, char** argv)
{
    using namespace velmor;
    const QApplication application(argc, argv);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath());
    test::PaintedProgram program;
    host::Window& stage = program.stage();
    program.engine.userFocus(stage, test::FieldCollector);
    for (const double scale : {0.9, 1.0, 1.5, 2.0, 2.4}) {
        const QString suffix = QString::number(qRound(scale * 100)) + QStringLiteral(".png");
        test::savePicture(stage, desktop::lightInks(), scale, 1.0, folder.filePath(QStringLiteral("stage") + suffix));
        test::savePicture(program.symbols(), desktop::lightInks(), scale, 1.0,
                          folder.filePath(QStringLiteral("symbols") + suffix));
    }
    test::savePicture(stage, desktop::lightInks(), 1.2, 1.5, folder.filePath(QStringLiteral("stage120x15.png")));
    stage.setVisible(test::OverlayPanel, true);
    test::savePicture(stage, desktop::darkInks(), 1.5, 1.0, folder.filePath(QStringLiteral("dark150.png")));
    stage.setVisible(test::OverlayPanel, false);
    const bool written = desktop::exportPdf(folder.filePath(QStringLiteral("stage.pdf")), stage, 0) &&
                         desktop::exportSvg(folder.filePath(QStringLiteral("stage.svg")), stage, 0);
    std::puts(written ? "written" : "could not be written");
    return written ? 0 : 1;
}
