// SPDX-License-Identifier: MIT
// Pictures of the window of a check, to be judged by eye: each finished design of tests/check, in both languages.
//     velmor_check_gallery FOLDER [NAME ...]
//     NAME-es, NAME-en: all rows open; NAME-bet: before the first bet; NAME-loud: at three times the input;
//     NAME-small: on a small screen; NAME-dark; NAME-sheet: the sheet with its tile
#include <cstdio>

#include <QAbstractButton>
#include <QApplication>
#include <QSlider>
#include <QTableView>

#include "desktop/application.h"
#include "desktop/check/finished_design.h"
#include "program/catalogue.h"

namespace velmor::test {

namespace check_gallery {

void save(QWidget& widget, const QString& folder, const std::string& name, const char* what)
{
    Bench::settle();
    widget.grab().save(QStringLiteral("%1/%2-%3.png").arg(folder, QString::fromStdString(name), QLatin1String(what)));
}

void speak(Bench& bench, desktop::CheckWindow& window, bool english)
{
    bench.engine.values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
    bench.screen.bringUpToDate();
    window.relabel();
}

/// The row that has the longest ladder, or the most to say.
void choose(desktop::CheckWindow& window, const char* quantity)
{
    auto* rows = window.findChild<QTableView*>(QStringLiteral("checkRows"));
    for (int row = 0; row < rows->model()->rowCount(); ++row)
        if (rows->model()->index(row, 0).data(Qt::AccessibleTextRole).toString().startsWith(
                QLatin1String(quantity) + QStringLiteral(",")))
            rows->setCurrentIndex(rows->model()->index(row, 3));
}

void take(const QString& folder, const std::string& name)
{
    Bench bench(program::catalogue());
    bench.open();
    host::Window& sheet = finishDesign(bench, name);
    save(bench.main(), folder, name, "sheet");
    bench.key(Qt::Key_T, Qt::ControlModifier);
    desktop::CheckWindow* window = checkOf(bench, sheet);
    if (window == nullptr || !waitForCheck(*window)) {
        std::printf("%s: no check\n", name.c_str());
        return;
    }
    choose(*window, "Zin");
    save(*window, folder, name, "bet");
    window->findChild<QAbstractButton*>(QStringLiteral("checkOpenAll"))->click();
    for (const char* quantity : {"Pout", "Eopp", "Vg", "Zin"})
        choose(*window, quantity);
    for (const bool english : {false, true}) {
        speak(bench, *window, english);
        save(*window, folder, name, english ? "en" : "es");
    }
    choose(*window, "Eopp");
    window->findChild<QSlider*>(QStringLiteral("checkDrive"))->setValue(145);
    waitForCheck(*window);
    save(*window, folder, name, "loud");
    window->resize(760, 540);
    save(*window, folder, name, "small");
}

} // namespace check_gallery

} // namespace velmor::test

int main(int argumentCount, char** arguments)
{
    using namespace velmor;
    desktop::Application application(argumentCount, arguments);
    const QStringList words = QApplication::arguments().mid(1);
    if (words.isEmpty())
        return 2;
    std::vector<std::string> names;
    for (const QString& word : words.mid(1))
        names.push_back(word.toStdString());
    for (const std::string& name : names.empty() ? test::finishedDesigns() : names)
        test::check_gallery::take(words.front(), name);
    return 0;
}
