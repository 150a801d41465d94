#include "qt/Composition.h"

#include "qt/SheetFrame.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

#include <utility>

namespace Tessellon {

void Composition::Take(QInputMethodEvent& event, const Show& show)
{
    const QString committed = event.commitString();
    text_ = event.preeditString();
    if (committed.isEmpty()) {
        show(event);
        return;
    }
    const QString next = std::exchange(text_, {});
    QInputMethodEvent emptied;
    emptied.setCommitString({}, event.replacementStart(), event.replacementLength());
    show(emptied);
    TypeAll(committed);
    if (!next.isEmpty() && control_.HasFocus()) {
        text_ = next;
        QInputMethodEvent rest(next, event.attributes());
        show(rest);
    }
    event.accept();
}

/// A commit that comes because code has taken the editor down finds nobody to type to.
void Composition::TypeAll(const QString& text)
{
    if (!control_.HasFocus() || !control_.CanHaveFocus())
        return;
    frame_.Do([&] {
        const std::shared_ptr<EnginePlatform> platform = frame_.Platform();
        for (const QChar unit : text)
            platform->TheKeys().Type(unit.unicode());
    });
}

void Composition::Commit(const Show& show)
{
    if (!IsUnderWay())
        return;
    QGuiApplication::inputMethod()->commit();
    if (!IsUnderWay())
        return;
    QInputMethodEvent taken;
    taken.setCommitString(text_);
    Take(taken, show);
}

} // namespace Tessellon
