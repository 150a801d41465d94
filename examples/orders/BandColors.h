#pragma once

#include <QColor>
#include <QDialog>

class QPushButton;

namespace Orders {

/// The colours of the rows, in turn.
struct BandColors {
    QColor Odd;
    QColor Even;

    bool operator==(const BandColors&) const = default;
};

/// Asks for the colours of the bands.
class BandColorsBox : public QDialog {
    Q_OBJECT

public:
    /// It starts from the first; the second are the desktop's own, to which the user can go back.
    BandColorsBox(const BandColors& current, const BandColors& desktop, QWidget* parent = nullptr);

    [[nodiscard]] const BandColors& Colors() const { return colors_; }

private:
    void Choose(const QString& name, QColor BandColors::*band);
    void Show();

    BandColors colors_;
    QPushButton* odd_ = nullptr;
    QPushButton* even_ = nullptr;
};

} // namespace Orders
