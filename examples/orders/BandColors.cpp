#include "orders/BandColors.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace Orders {

namespace {

QIcon IconOf(const QColor& color, const QWidget& widget)
{
    constexpr QSize size(48, 16);
    QPixmap picture(size * widget.devicePixelRatio());
    picture.setDevicePixelRatio(widget.devicePixelRatio());
    picture.fill(color);
    QPainter painter(&picture);
    painter.setPen(widget.palette().color(QPalette::Text));
    painter.drawRect(QRect(QPoint(0, 0), size).adjusted(0, 0, -1, -1));
    painter.end();
    return picture;
}

} // namespace

BandColorsBox::BandColorsBox(const BandColors& current, const BandColors& desktop, QWidget* parent)
    : QDialog(parent)
    , colors_(current)
{
    setWindowTitle(tr("Colours of the bands"));
    auto* const form = new QFormLayout;
    odd_ = new QPushButton(this);
    even_ = new QPushButton(this);
    for (QPushButton* const button : {odd_, even_}) {
        button->setIconSize({48, 16});
        button->setAutoDefault(false);
    }
    form->addRow(tr("O&dd rows:"), odd_);
    form->addRow(tr("&Even rows:"), even_);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* const reset = buttons->addButton(tr("As the des&ktop"), QDialogButtonBox::ResetRole);
    reset->setAutoDefault(false);

    auto* const all = new QVBoxLayout(this);
    all->addLayout(form);
    all->addWidget(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);

    connect(odd_, &QPushButton::clicked, this, [this] { Choose(tr("Odd rows"), &BandColors::Odd); });
    connect(even_, &QPushButton::clicked, this, [this] { Choose(tr("Even rows"), &BandColors::Even); });
    connect(reset, &QPushButton::clicked, this, [this, desktop] {
        colors_ = desktop;
        Show();
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Show();
    odd_->setFocus();
}

void BandColorsBox::Choose(const QString& name, QColor BandColors::*band)
{
    const QColor chosen = QColorDialog::getColor(colors_.*band, this, name, QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid())
        return;
    colors_.*band = chosen;
    Show();
}

void BandColorsBox::Show()
{
    odd_->setIcon(IconOf(colors_.Odd, *this));
    odd_->setText(colors_.Odd.name());
    even_->setIcon(IconOf(colors_.Even, *this));
    even_->setText(colors_.Even.name());
}

} // namespace Orders
