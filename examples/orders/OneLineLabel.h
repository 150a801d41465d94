#pragma once

#include <QLabel>

namespace Orders {

/// A line of text that asks for no room: what does not fit ends in an ellipsis and is told by the tool tip.
class OneLineLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Orders
