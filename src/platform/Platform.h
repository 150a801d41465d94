#pragma once

#include "platform/Container.h"
#include "platform/Editors.h"
#include "platform/Events.h"
#include "platform/Failure.h"
#include "platform/Grid.h"
#include "platform/Recordset.h"
#include "platform/RunTime.h"

#include <cstddef>
#include <memory>

namespace Tessellon {

/// Everything that one sheet stands on: its child controls, its container and its run time. All that is handed out
/// lives as long as the platform, instances of control arrays as long as their handles.
class Platform {
public:
    virtual ~Platform() = default;

    virtual Grid& MSFlexGrid1() = 0;
    virtual std::shared_ptr<TextBox> Text1() = 0;
    virtual std::shared_ptr<CheckBox> Check1() = 0;
    virtual ControlArray<ComboBox>& Combo1() = 0;
    virtual ControlArray<ListBox>& List1() = 0;
    virtual std::shared_ptr<DTPicker> DTPicker1() = 0;
    virtual ControlArray<MaskEdBox>& MaskEdBox1() = 0;
    virtual std::shared_ptr<RichTextBox> RichTextBox1() = 0;
    virtual ControlArray<CommandButton>& Command1() = 0;
    virtual Image& ImgAction(std::int16_t index) = 0;

    virtual Container& UserControl() = 0;
    virtual Tessellon::Screen& Screen() = 0;
    virtual Tessellon::RunTime& RunTime() = 0;

    /// The recordset as the sheet is to see it; a platform that watches its calls puts itself between.
    virtual std::shared_ptr<Recordset> Watched(std::shared_ptr<Recordset> recordset) = 0;

    /// From here on events are told to `sink`; none with nullptr.
    virtual void Listen(EventSink* sink) = 0;

    /// Bytes of stack that the sheet's frames may use below the outermost way in: three quarters of what there is.
    virtual std::size_t StackBudget() = 0;
};

} // namespace Tessellon
