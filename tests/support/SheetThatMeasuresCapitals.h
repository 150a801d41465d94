#pragma once

#include "support/SheetUnderTest.h"

#include <algorithm>
#include <memory>
#include <string_view>

namespace Tessellon {

/// A toolkit whose capitals are 500 twips wide and whose other characters have no width.
class CapitalToolkit : public HeadlessToolkit {
public:
    float TextWidth(std::u16string_view text, const Font& /*font*/) override
    {
        constexpr float capital = 500;
        return capital * static_cast<float>(std::count_if(text.begin(), text.end(),
                                                          [](char16_t c) { return c >= u'A' && c <= u'Z'; }));
    }
};

/// A sheet of one text column, which shows by its width in which letters a text was measured.
class SheetThatMeasuresCapitals {
public:
    SheetThatMeasuresCapitals()
    {
        TestBag bag;
        sheet_->UserControl_ReadProperties(bag);
        sheet_->Cols(2);
    }
    TessellonSheet* operator->() { return sheet_.get(); }
    void Build(std::u16string_view heading, FieldAutoAdjustType adjust)
    {
        sheet_->CreateColumnDataType(1, heading, fcTextBox, u"", false, fcLeft, 40, adjust, false);
        sheet_->BuildGridColumns();
    }
    std::int32_t WidthOfFirst() { return platform_->TheGrid().ColWidth(1); }

private:
    std::shared_ptr<EnginePlatform> platform_ =
        std::make_shared<EnginePlatform>(std::make_shared<CapitalToolkit>(), Locale::English());
    SheetPointer sheet_ = TessellonSheet::Create(platform_);
};

} // namespace Tessellon
