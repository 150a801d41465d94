#pragma once

#include <QString>

#include <functional>

class QInputMethodEvent;

namespace Tessellon {

class ControlCore;
class SheetFrame;

/// What an input method composes in an editor. What it commits is typed, character by character, so that the sheet
/// hears of it as of any other.
class Composition {
public:
    /// What Qt's own widget makes of an event: it shows what is composed.
    using Show = std::function<void(QInputMethodEvent&)>;

    Composition(SheetFrame& frame, ControlCore& control)
        : frame_(frame)
        , control_(control)
    {
    }

    [[nodiscard]] bool IsUnderWay() const { return !text_.isEmpty(); } ///< There is text that is not committed yet.
    [[nodiscard]] const QString& Text() const { return text_; }
    void Take(QInputMethodEvent& event, const Show& show);
    void Commit(const Show& show); ///< The user turns to something else: what he has composed so far is typed.
    void Drop() { text_.clear(); } ///< The editor goes.

private:
    void TypeAll(const QString& text);

    SheetFrame& frame_;
    ControlCore& control_;
    QString text_;
};

} // namespace Tessellon
