// SPDX-License-Identifier: MIT
// The widget of a design field: one flat line, whose keys, mouse and focus are led by the model.
#pragma once

#include <QLineEdit>

#include "host/control.h"

namespace velmor::desktop {

struct Inks;

class FieldEdit final : public QLineEdit {
public:
    FieldEdit(const Inks& inks, QWidget* parent);

    void setInks(const Inks& inks);
    /// Shows the program's text; a text that the program had selected whole stays so.
    void showText(const QString& text);
    /// As a field that gets the focus by keyboard or by the program.
    void selectWhole();
    /// What was typed into it can no longer be undone: its text is the sheet's now.
    void forgetTyping();
    /// From here on the selection is the person's own.
    void handTaken() { selectedWhole_ = false; }
    /// The colours a sheet gave the field; -1 the usual ones.
    void setOwnColors(std::int32_t ground, std::int32_t ink);
    /// A value whose part the chain has not reached steps back, and stays readable.
    void setPale(bool pale);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    QColor ownGround() const;
    void recolor();
    void selectFromEnd();

    const Inks* inks_;
    std::int32_t ground_ = -1;
    std::int32_t ink_ = -1;
    bool pale_ = false;
    bool selectedWhole_ = false;
};

} // namespace velmor::desktop
