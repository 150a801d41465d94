#pragma once

#include "engine/CountedRecordset.h"
#include "qt/SheetFrame.h"
#include "qt/SheetWidget.h"
#include "shell/TessellonSheet.h"

namespace Tessellon {

/// What a sheet's widget is made of. The sheet goes first, so that the frame hears no more of it.
struct SheetWidget::Parts {
    explicit Parts(SheetWidget& widget);
    ~Parts();
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    SheetFrame* const Frame;
    SheetPointer Sheet;
    CountedRecordset::Clock Clock = &std::chrono::steady_clock::now; ///< By which a load tells how far it has come.
};

} // namespace Tessellon
