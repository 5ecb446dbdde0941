// SPDX-License-Identifier: MIT
#include "desktop/arriving_files.h"

#include <filesystem>
#include <system_error>

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include "desktop/desktop_screen.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/menus.h"
#include "desktop/windows/recent_menu.h"
#include "desktop/windows/window_keeper.h"
#include "program/files.h"

namespace velmor::desktop {

namespace arriving_files_detail {

std::vector<std::string> localFilesOf(const QMimeData& data)
{
    std::vector<std::string> files;
    for (const QUrl& address : data.urls())
        if (address.isLocalFile())
            files.push_back(held(address.toLocalFile()));
    return files;
}

// A folder that the program may change to must not change what was named.
std::string wholePath(const std::string& file)
{
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(file, error);
    return error ? file : whole.lexically_normal().string();
}

} // namespace arriving_files_detail

using namespace arriving_files_detail;

ArrivingFiles::ArrivingFiles(host::Engine& engine, DesktopScreen& screen)
    : engine_(engine), screen_(screen), recent_(engine)
{}

// The window of the platform gets a drop before any field inside it does: a file is never typed into a field as its address.
void ArrivingFiles::watch()
{
    MainWindow* main = screen_.keeper().mainWindow();
    if (main == nullptr || engine_.ended())
        return;
    if (QWindow* window = main->windowHandle())
        window->installEventFilter(this);
    QMenu* menu = main->menus().menuOf(main->model()->spec().mainParts.files);
    if (menu == nullptr)
        return;
    auto* list = new RecentMenu(*menu);
    list->paths = [this] {
        listed_ = recent_.present();
        QStringList paths;
        for (const program::RecentCircuit& circuit : listed_)
            paths.append(shown(circuit.path));
        return paths;
    };
    list->chosen = [this](int index) {
        const program::RecentCircuit circuit = listed_.at(static_cast<std::size_t>(index));
        if (!engine_.ended())
            program::openCircuit(engine_, circuit.sheet, circuit.path);
    };
}

void ArrivingFiles::open(const std::vector<std::string>& files)
{
    for (const std::string& file : files)
        waiting_.push_back(wholePath(file));
    if (!waiting_.empty())
        QTimer::singleShot(0, this, [this] { openNext(); });
}

// A box may stand over one of them: the others wait for its answer.
void ArrivingFiles::openNext()
{
    if (opening_)
        return;
    opening_ = true;
    while (!waiting_.empty() && !engine_.ended()) {
        const std::string file = waiting_.front();
        waiting_.pop_front();
        program::openFile(engine_, file);
    }
    opening_ = false;
}

bool ArrivingFiles::take(QDropEvent& event, bool dropped)
{
    const QMimeData* data = event.mimeData();
    if (data == nullptr || !data->hasUrls())
        return false;
    const std::vector<std::string> files = localFilesOf(*data);
    if (files.empty())
        return false;
    event.setDropAction(Qt::CopyAction);
    event.accept();
    if (dropped)
        open(files);
    return true;
}

bool ArrivingFiles::eventFilter(QObject* object, QEvent* event)
{
    if (!engine_.ended() && !screen_.desk().closing) {
        const QEvent::Type type = event->type();
        if (type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop)
            if (take(*static_cast<QDropEvent*>(event), type == QEvent::Drop))
                return true;
    }
    return QObject::eventFilter(object, event);
}

} // namespace velmor::desktop
