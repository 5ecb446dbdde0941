// SPDX-License-Identifier: MIT
// Writes the program's icon as a picture of the size that its name says: icon_writer 48.png...
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>

#include "desktop/drawing/program_icon.h"

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    const QStringList files = QGuiApplication::arguments().mid(1);
    for (const QString& file : files)
        if (!velmor::desktop::programPicture(QFileInfo(file).baseName().toInt()).save(file))
            return 1;
    return files.isEmpty() ? 1 : 0;
}
