#pragma once

#include <QProgressBar>

namespace Orders {

/// How far a load has come, with the figures. Hidden until there is something to tell.
class LoadBar : public QProgressBar {
    Q_OBJECT

public:
    explicit LoadBar(QWidget* parent = nullptr);

    void Tell(int rows, int records); ///< Rows of so many records; 0 rows while the records are counted.
    [[nodiscard]] QSize sizeHint() const override;
};

} // namespace Orders
