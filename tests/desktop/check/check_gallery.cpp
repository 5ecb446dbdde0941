// SPDX-License-Identifier: MIT
// Pictures of the window of a check, to be judged by eye: each finished design of tests/check, in both languages.
//     velmor_check_gallery FOLDER [NAME ...]
//     NAME-bet: before the first bet; NAME-es, NAME-en: all rows open; NAME-loud: at three times the input; NAME-small: on a
//     small screen; NAME-yours-es, NAME-yours-en: with the preset as it was set; NAME-dark; NAME-page1es and so on: the other
//     pages; NAME-curves.svg and .pdf
#include <clocale>
#include <cstdio>

#include <QAbstractButton>
#include <QApplication>
#include <QSlider>
#include <QTabWidget>
#include <QTableView>

#include "desktop/check/check_words.h"
#include "desktop/check/curves_export.h"
#include "desktop/check/finished_design.h"
#include "desktop/drawing/quiet_style.h"

namespace velmor::test {

namespace check_gallery {

class Gallery {
public:
    Gallery(QString folder, std::string name)
        : folder_(std::move(folder)), name_(std::move(name)), design_(name_),
          window_(design_.desk(), "", deeds(), nullptr)
    {
        window_.begin(design_.design(), QString::fromUtf8(design_.sheet().caption().data()).simplified());
        window_.show();
    }

    void take()
    {
        if (!waitForCheck(window_)) {
            std::printf("%s: no end\n", name_.c_str());
            return;
        }
        choose("Zin");
        save("bet");
        window_.findChild<QAbstractButton*>(QStringLiteral("checkOpenAll"))->click();
        for (const char* quantity : {"Pout", "Vg", "Zin"})
            choose(quantity);
        for (const bool english : {false, true}) {
            design_.speak(english);
            window_.relabel();
            save(english ? "en" : "es");
            savePages(english);
        }
        saveCurves();
        takeYours();
        takeLoud();
    }

private:
    desktop::CheckDeeds deeds()
    {
        return {.again = [] {}, .fileFor = {}, .toReport = [](const QString&) { return true; }, .closed = {}};
    }

    /// The run with the student's own values, where there are two.
    void takeYours()
    {
        auto* yours = window_.findChild<QAbstractButton*>(QStringLiteral("checkYourValues"));
        if (!yours->isVisible())
            return;
        yours->click();
        waitForCheck(window_);
        choose("Pclean");
        for (const bool english : {false, true}) {
            design_.speak(english);
            window_.relabel();
            save(english ? "yours-en" : "yours-es");
        }
        window_.findChild<QAbstractButton*>(QStringLiteral("checkTrimmed"))->click();
        waitForCheck(window_);
    }

    void takeLoud()
    {
        choose("Eopp");
        window_.findChild<QSlider*>(QStringLiteral("checkDrive"))->setValue(145);
        waitForCheck(window_);
        save("loud");
        design_.desk().inks = &desktop::darkInks();
        window_.recolor();
        save("dark");
        window_.resize(780, 560);
        save("small");
    }

    void savePages(bool english)
    {
        auto* pages = window_.findChild<QTabWidget*>(QStringLiteral("checkPages"));
        for (int page = 1; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            save(qPrintable(QStringLiteral("page%1%2").arg(page).arg(QLatin1String(english ? "en" : "es"))));
        }
        pages->setCurrentIndex(pages->isTabVisible(0) ? 0 : 1);
    }

    void saveCurves()
    {
        const desktop::GainPlot gain(window_.checked());
        const desktop::WavePlot wave(window_.checked());
        const desktop::HarmonicsPlot harmonics(window_.checked());
        const std::string run = check::presetWords(window_.checked().result.preset).en;
        desktop::CurvesPaper paper{
            .title = window_.windowTitle(), .note = desktop::check_words::prose(desktop::shown(run)), .english = true};
        for (const desktop::Plot* plot : std::initializer_list<const desktop::Plot*>{&gain, &wave, &harmonics})
            if (plot->hasData())
                paper.plots.push_back(plot);
        const QString path = folder_ + QLatin1Char('/') + QString::fromStdString(name_);
        desktop::exportCurvesSvg(path + QStringLiteral("-curves.svg"), paper);
        desktop::exportCurvesPdf(path + QStringLiteral("-curves.pdf"), paper);
    }

    void save(const char* what)
    {
        QCoreApplication::processEvents();
        window_.grab().save(
            QStringLiteral("%1/%2-%3.png").arg(folder_, QString::fromStdString(name_), QLatin1String(what)));
    }

    void choose(const char* quantity)
    {
        auto* rows = window_.findChild<QTableView*>(QStringLiteral("checkRows"));
        const QString wanted = QLatin1String(quantity) + QStringLiteral(",");
        for (int row = 0; row < rows->model()->rowCount(); ++row)
            if (rows->model()->index(row, 0).data(Qt::AccessibleTextRole).toString().startsWith(wanted))
                rows->setCurrentIndex(rows->model()->index(row, 3));
    }

    QString folder_;
    std::string name_;
    FinishedDesign design_;
    desktop::CheckWindow window_;
};

} // namespace check_gallery

} // namespace velmor::test

int main(int argumentCount, char** arguments)
{
    using namespace velmor;
    const QApplication application(argumentCount, arguments);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new desktop::QuietStyle);
    const QStringList words = QApplication::arguments().mid(1);
    if (words.isEmpty())
        return 2;
    std::vector<std::string> names;
    for (const QString& word : words.mid(1))
        names.push_back(word.toStdString());
    for (const std::string& name : names.empty() ? test::finishedDesigns() : names)
        test::check_gallery::Gallery(words.front(), name).take();
    return 0;
}
