// SPDX-License-Identifier: MIT
// The toolkit, made ready for the program: numbers without commas, its name, icon and style, assistive technology.
#pragma once

#include <QApplication>

namespace velmor::desktop {

class Application final : public QApplication {
public:
    Application(int& argumentCount, char** arguments);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keepInStep();
};

} // namespace velmor::desktop
