#pragma once

#include "qt/SheetWidget.h"

namespace Orders {

/// While one of these lives, a failure of the sheet is told by ErrInfo alone, without a box.
class Quiet {
public:
    explicit Quiet(Tessellon::SheetWidget& sheet)
        : sheet_(sheet)
        , before_(sheet.ShowErrMessage())
    {
        sheet_.ShowErrMessage(false);
    }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet() { sheet_.ShowErrMessage(before_); }

private:
    Tessellon::SheetWidget& sheet_;
    bool before_;
};

} // namespace Orders
