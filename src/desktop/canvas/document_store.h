// SPDX-License-Identifier: MIT
// The text of an editor, held by the document that its widget shows, so that ten megabytes cost nothing per key.
// Positions count characters (code points), as the program's slots do.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <QTextCursor>
#include <QTextDocument>

#include "desktop/canvas/long_lines.h"
#include "host/text_store.h"

namespace velmor::desktop {

class DocumentStore final : public host::TextStore {
public:
    DocumentStore();
    ~DocumentStore() override;

    QTextDocument* document() { return &document_; }
    /// The widget that shows the document keeps the selection from now on.
    void shownBy(QPlainTextEdit* edit);
    /// True while the program, not the person, changes the text.
    bool programChanges() const { return changing_ > 0; }

    std::size_t length() const override;
    std::string slice(std::size_t from, std::size_t count) const override;
    std::string all() const override;
    void setAll(std::string_view text) override;
    std::size_t selectionStart() const override;
    std::size_t selectionLength() const override;
    void select(std::size_t from, std::size_t count) override;
    void replaceSelection(std::string_view text) override;

private:
    /// A place in the text that is known in both ways of counting.
    struct Known {
        std::size_t character = 0;
        int unit = 0;
    };

    QTextCursor cursor() const;
    void keep(const QTextCursor& cursor);
    void follow(int from, int added);
    Known knownNear(std::size_t character, int unit) const;
    int unitOf(std::size_t character) const;
    std::size_t characterOf(int unit) const;

    QTextDocument document_;
    LongLines* lines_;
    QTextCursor cursor_;
    QPointer<QPlainTextEdit> edit_;
    int changing_ = 0;
    bool surrogates_ = false; ///< may stand in the text
    mutable Known known_;
};

} // namespace velmor::desktop
