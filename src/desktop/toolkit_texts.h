// SPDX-License-Identifier: MIT
// The toolkit's own texts (file dialogs, menus of text boxes, printing) in the program's language. What the program says
// itself is not its business.
#pragma once

#include <QTranslator>

namespace velmor::desktop {

class ToolkitTexts {
public:
    /// The texts are in that language from now on. The file is read when they are first wanted in Spanish.
    void speak(bool english);
    /// The same once somebody has asked for them; until then nothing is read.
    void follow(bool english);

private:
    QTranslator spanish_;
    bool asked_ = false;
    bool loaded_ = false;
    bool installed_ = false;
};

} // namespace velmor::desktop
