#include "engine/DefaultProperties.h"
#include "engine/EnginePlatform.h"
#include "headless/HeadlessHand.h"
#include "headless/HeadlessToolkit.h"
#include "shell/TessellonSheet.h"

int main()
{
    using namespace Tessellon;
    const auto platform = std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English());
    const SheetPointer sheet = TessellonSheet::Create(platform);
    DefaultProperties properties;
    sheet->UserControl_ReadProperties(properties);
    platform->Resize(9600, 4800);
    sheet->Cols(2);
    sheet->CreateColumnDataType(1, u"Customer", fcTextBox, u"", false, fcLeft, 0, faContent, false);
    sheet->BuildGridColumns();
    sheet->AllowAddNew(true);
    sheet->Add(0);
    HeadlessHand(platform).Press({65, 0, true, u'A'});
    return sheet->TextMatrix(1, 1) == u"A" ? 0 : 1;
}
