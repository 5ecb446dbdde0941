// SPDX-License-Identifier: MIT
// Renders windows to pictures, to be judged by eye, and names every text that does not fit:
//     velmor_gallery FOLDER           the sample windows of the painters, also as PDF and SVG
//     velmor_gallery FOLDER NAME ...  windows of the program, with all that is hidden shown under NAME-all; of a sheet also
//                                     how its drawing grows, under NAME-half and NAME-whole, and its tools
//     velmor_gallery FOLDER NAME:DEED:DEED ...  the same, then some deeds one after the other once the drawing is whole: CONTROL
//                                     clicked, WINDOW.CONTROL clicked in another window, FROM>TO dragged, FIELD=TEXT entered, "+"
//                                     on along the chain, as after the button of a page
#include <cstdio>
#include <set>
#include <string>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/drawing_export.h"
#include "desktop/drawing/painted_sheet.h"
#include "quiet_screen.h"
#include "sheets/schematic.h"
#include "sheets/template_program.h"

namespace velmor::test {

desktop::View galleryView(const desktop::Inks& inks, double scale, std::int16_t languageIsEnglish)
{
    desktop::View view;
    view.pixelsPerTwip = scale / desktop::twipsPerUnit;
    view.inks = &inks;
    view.languageIsEnglish = languageIsEnglish;
    return view;
}

/// The widgets' part of a sheet: fields as plain boxes with their texts.
void paintFields(QPainter& painter, const host::Window& window, const desktop::View& view)
{
    for (host::Handle control = 0; control < window.controlCount(); ++control) {
        const host::Kind kind = window.row(control).kind;
        const bool boxed = kind == host::Kind::field || kind == host::Kind::page || kind == host::Kind::list;
        if (!boxed || !desktop::isPainted(window, control))
            continue;
        const QRectF box = desktop::boxOf(window, control, view);
        const bool enabled = window.enabled(control);
        painter.setPen(view.inks->edge);
        painter.setBrush(enabled ? view.inks->field : view.inks->fieldOff);
        painter.drawRoundedRect(box, 3.0, 3.0);
        painter.setPen(enabled ? view.inks->fieldInk : view.inks->fieldOffInk);
        painter.setFont(desktop::captionFont(window, control, view));
        const int flags = kind == host::Kind::field ? Qt::AlignVCenter : Qt::AlignTop | Qt::TextWordWrap;
        painter.drawText(box.adjusted(4, 0, -4, 0), flags, QString::fromStdString(window.text(control)));
    }
}

void savePicture(const host::Window& window, const desktop::View& view, double ratio, const QString& path)
{
    const host::Place& place = window.spec().place;
    const QSizeF size = QSizeF(place.width, place.height) * view.pixelsPerTwip * ratio;
    QImage image(size.toSize().expandedTo({16, 16}), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(view.inks->paper);
    QPainter painter(&image);
    desktop::paintWindow(painter, window, view);
    paintFields(painter, window, view);
    painter.end();
    image.save(path);
}

int reportMisfits(const host::Window& window, const desktop::View& view, const char* what)
{
    int misfits = 0;
    for (host::Handle control = 0; control < window.controlCount(); ++control)
        if (desktop::isPainted(window, control) && !desktop::captionFits(window, control, view)) {
            ++misfits;
            std::printf("%s %s: %s does not fit\n", std::string(window.name()).c_str(), what,
                        std::string(window.row(control).name).c_str());
        }
    return misfits;
}

bool saveSamples(const QDir& folder)
{
    PaintedProgram program;
    host::Window& stage = program.stage();
    program.engine.userFocus(stage, FieldCollector);
    for (const double scale : {0.9, 1.0, 1.5, 2.0, 2.4}) {
        const QString suffix = QString::number(qRound(scale * 100)) + QStringLiteral(".png");
        const desktop::View view = galleryView(desktop::lightInks(), scale, 0);
        savePicture(stage, view, 1.0, folder.filePath(QStringLiteral("stage") + suffix));
        savePicture(program.symbols(), view, 1.0, folder.filePath(QStringLiteral("symbols") + suffix));
    }
    savePicture(stage, galleryView(desktop::lightInks(), 1.2, 0), 1.5, folder.filePath(QStringLiteral("dense.png")));
    const bool written = desktop::exportPdf(folder.filePath(QStringLiteral("stage.pdf")), stage, 0) &&
                         desktop::exportSvg(folder.filePath(QStringLiteral("stage.svg")), stage, 0);
    stage.setVisible(OverlayPanel, true);
    savePicture(stage, galleryView(desktop::darkInks(), 1.5, 0), 1.0, folder.filePath(QStringLiteral("dark.png")));
    return written;
}

constexpr int mostSteps = 60;

/// A program with one window open.
struct OpenWindow {
    OpenWindow(const std::string& name, std::int16_t languageIsEnglish)
        : engine(template_sheet::catalogue(), screen, settings)
    {
        engine.values().LanguageIsEnglish = languageIsEnglish;
        engine.loadMainWindow();
        engine.userRun([&] {
            window = engine.host().NewInstance(name);
            if (window != nullptr)
                engine.host().Show(*window);
        });
    }

    /// Takes the default of the field in hand, or goes on without it; what comes again is accepted as it stands: two fields
    /// may pass a question to each other by their defaults. False when the chain ends here.
    bool step()
    {
        const host::Handle before = window->focus();
        const bool again = !seen.insert(before).second;
        for (const std::int16_t key : {again ? enter : escape, again ? escape : enter})
            if (before != host::noControl && window->focus() == before)
                engine.userKey(*window, key);
        return window->focus() != before;
    }
    int steps(int most)
    {
        int count = 0;
        while (count < most && step())
            ++count;
        return count;
    }

    /// "CONTROL" or "WINDOW.CONTROL" is clicked, "FROM>TO" dragged, "FIELD=TEXT" entered; "+" goes on along the chain.
    void take(const QString& deed)
    {
        const auto named = [&](QLatin1Char sign, int part) {
            return window->named(deed.section(sign, part, part).toStdString());
        };
        if (deed == QLatin1String("+")) {
            steps(mostSteps);
        } else if (deed.contains(QLatin1Char('>'))) {
            engine.userDrag(*window, named(QLatin1Char('>'), 0), named(QLatin1Char('>'), 1));
        } else if (deed.contains(QLatin1Char('='))) {
            const host::Handle field = named(QLatin1Char('='), 0);
            engine.userFocus(*window, field);
            engine.userText(*window, field, deed.section(QLatin1Char('='), 1).toStdString());
            engine.userKey(*window, 13);
        } else {
            const QStringList place = deed.split(QLatin1Char('.'));
            host::Window* on = place.size() > 1 ? engine.host().find(place.front().toStdString()) : window;
            if (on != nullptr && on->named(place.back().toStdString()) != host::noControl)
                engine.userClick(*on, on->named(place.back().toStdString()));
        }
    }

    static constexpr std::int16_t escape = 27;
    static constexpr std::int16_t enter = 13;

    QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    host::Window* window = nullptr;
    std::set<host::Handle> seen; ///< fields that have been in hand
};

/// The row of tools alone, twice as large.
void saveTools(const host::Window& window, desktop::View view, const QString& path)
{
    constexpr host::Place room = sheets::at(sheets::zones::right - 6, 88, 184, 194);
    view.pixelsPerTwip *= 2.0;
    view.origin = QPointF(-room.left, -room.top) * view.pixelsPerTwip;
    QImage image((QSizeF(room.width, room.height) * view.pixelsPerTwip).toSize(), QImage::Format_RGB32);
    image.fill(view.inks->paper);
    QPainter painter(&image);
    desktop::paintWindow(painter, window, view);
    painter.end();
    image.save(path);
}

/// How a sheet's drawing grows when the defaults are taken: half of it, all of it, and what some clicks and drags
/// ("image2>Image4") then show.
void saveGrowth(const QString& stem, const QStringList& name, const desktop::View& view)
{
    const std::string kind = name.front().toStdString();
    const int whole = OpenWindow(kind, view.languageIsEnglish).steps(mostSteps);
    OpenWindow open(kind, view.languageIsEnglish);
    open.steps(whole / 2);
    savePicture(*open.window, view, 1.0, stem + QStringLiteral("-half.png"));
    open.steps(mostSteps);
    savePicture(*open.window, view, 1.0, stem + QStringLiteral("-whole.png"));
    saveTools(*open.window, view, stem + QStringLiteral("-tools.png"));
    for (const QString& deed : name.mid(1))
        open.take(deed);
    if (name.size() > 1)
        savePicture(*open.window, view, 1.0, stem + QStringLiteral("-clicked.png"));
}

/// One window of the program as it first shows itself in a language; false when the program has none of that name.
bool saveWindow(const QDir& folder, const QStringList& name, std::int16_t languageIsEnglish)
{
    OpenWindow open(name.front().toStdString(), languageIsEnglish);
    if (open.window == nullptr)
        return false;
    host::Window& window = *open.window;
    const char* language = languageIsEnglish == host::trueValue ? "en" : "es";
    const QString stem = folder.filePath(name.front() + QLatin1Char('-') + QLatin1String(language));
    const desktop::View view = galleryView(desktop::lightInks(), 1.4, languageIsEnglish);
    const desktop::View dark = galleryView(desktop::darkInks(), 1.4, languageIsEnglish);
    savePicture(window, view, 1.0, stem + QStringLiteral(".png"));
    savePicture(window, dark, 1.0, stem + QStringLiteral("-dark.png"));
    for (const double scale : {1.0, 1.4, 2.0})
        reportMisfits(window, galleryView(desktop::lightInks(), scale, languageIsEnglish), language);
    if (window.role() == host::Role::sheet) {
        saveGrowth(stem, name, view);
        saveGrowth(stem + QStringLiteral("-dark"), name, dark);
    }
    for (host::Handle control = 0; control < window.controlCount(); ++control)
        window.setVisible(control, true);
    savePicture(window, view, 1.0, stem + QStringLiteral("-all.png"));
    return true;
}

} // namespace velmor::test

int main(int argc, char** argv)
{
    using namespace velmor;
    const QApplication application(argc, argv);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath());
    bool done = true;
    if (argc <= 2)
        done = test::saveSamples(folder);
    for (int i = 2; i < argc; ++i)
        for (const std::int16_t language : {std::int16_t{0}, host::trueValue})
            if (!test::saveWindow(folder, QString::fromLocal8Bit(argv[i]).split(QLatin1Char(':')), language)) {
                std::printf("%s: no such window\n", argv[i]);
                done = false;
            }
    return done ? 0 : 1;
}
