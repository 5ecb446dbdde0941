// SPDX-License-Identifier: MIT
// All tests of this program run under a locale that writes a comma, offscreen.
#include <cstdio>

#include <gtest/gtest.h>

#include "desktop/application.h"

namespace velmor::test::desktop_main {

// The offscreen platform tells each time what it cannot do; everything else is worth reading.
void tell(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(QStringLiteral("This plugin does not support")) &&
        !message.contains(QStringLiteral("XDG_RUNTIME_DIR")) &&
        !message.contains(QStringLiteral("unsupported clipboard mode")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace velmor::test::desktop_main

int main(int argc, char** argv)
{
    qInstallMessageHandler(velmor::test::desktop_main::tell);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    qputenv("LC_ALL", "es_AR.UTF-8");
    velmor::desktop::Application::setAttribute(Qt::AA_DontUseNativeDialogs);
    const velmor::desktop::Application application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
