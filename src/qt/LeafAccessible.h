#pragma once

#include <QAccessibleInterface>

namespace Tessellon {

/// Something that is painted, has neither a widget of its own nor children, and cannot be written by a screen reader.
class LeafAccessible : public QAccessibleInterface {
public:
    [[nodiscard]] QObject* object() const final { return nullptr; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const final { return nullptr; }
    [[nodiscard]] int childCount() const final { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const final { return -1; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const final { return nullptr; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) final {}
};

} // namespace Tessellon
