// SPDX-License-Identifier: MIT
// The toolkit's own texts (file dialogs, menus of text boxes, printing) in the program's language. What the program says
// itself is not its business.
#pragma once

#include <QTranslator>

namespace velmor::desktop {

/// What the toolkit's own Spanish leaves in English.
class GapsInSpanish final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char* comment, int count) const override;
    bool isEmpty() const override { return false; }
};

class ToolkitTexts {
public:
    /// The texts are in that language from now on. The file is read when they are first wanted in Spanish.
    void speak(bool english);
    /// The same once somebody has asked for them; until then nothing is read.
    void follow(bool english);

private:
    QTranslator spanish_;
    GapsInSpanish gaps_;
    bool asked_ = false;
    bool loaded_ = false;
    bool installed_ = false;
};

} // namespace velmor::desktop
