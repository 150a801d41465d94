#pragma once

#include "qt/SheetWidget.h"

#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

namespace Tessellon {

/// A host's dialog, shown: a sheet, and a default button behind it.
struct HostDialog : QDialog {
    HostDialog()
        : Sheet(new SheetWidget(this))
        , Button(new QPushButton(QStringLiteral("OK"), this))
    {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(Sheet);
        layout->addWidget(Button);
        Button->setDefault(true);
        connect(Button, &QPushButton::clicked, this, [this] { ++Pressed; });
        show();
        activateWindow();
    }

    SheetWidget* const Sheet;
    QPushButton* const Button;
    int Pressed = 0; ///< How often the button was.
};

} // namespace Tessellon
