#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace Tessellon {

/// What all editors share. Positions and sizes are twips in the sheet. A text that is handed out stays valid until the
/// next call on that control. An instance that was unloaded keeps its handle valid and stays hidden for good.
class Editor {
public:
    virtual ~Editor() = default;

    /// The control's name, with its index in an array: "Text1", "Combo1(2)".
    virtual std::u16string_view Name() = 0;
    /// The run-time name of the control's class, in upper case: "TEXTBOX", "CHECKBOX", "COMBOBOX", "LISTBOX",
    /// "DTPICKER", "MASKEDBOX", "RICHTEXTBOX" or "COMMANDBUTTON".
    virtual std::u16string_view ClassName() = 0;

    virtual bool Visible() = 0;
    virtual void Visible(bool visible) = 0; ///< Holds when it returns.
    virtual bool Enabled() = 0;
    virtual void Enabled(bool enabled) = 0; ///< Holds when it returns.
    virtual void ZOrder(std::int16_t position) = 0; ///< 0 to the front, 1 to the back.
    virtual void SetFocus() = 0; ///< On a hidden or disabled control: failure 5.
    virtual std::u16string_view Tag() = 0;
    virtual void Tag(std::u16string_view tag) = 0;

    virtual float Left() = 0;
    virtual void Left(float left) = 0;
    virtual float Top() = 0;
    virtual void Top(float top) = 0;
    virtual float Width() = 0;
    virtual void Width(float width) = 0;
    virtual float Height() = 0;
    virtual void Move(float left, float top, float width, float height) = 0;

    virtual void FontName(std::u16string_view name) = 0;
    virtual void FontSize(double points) = 0; ///< Not above 0: failure 380.
};

class TextBox : public Editor {
public:
    virtual std::u16string_view Text() = 0;
    virtual void Text(std::u16string_view text) = 0;
    virtual void MaxLength(std::int32_t length) = 0; ///< Limits typing only; 0 is no limit.
    virtual std::int32_t SelStart() = 0;
    virtual void SelStart(std::int32_t position) = 0; ///< Below 0: failure 380; above the length: the length.
    virtual void Alignment(std::int16_t alignment) = 0; ///< 0 left, 1 right, 2 centre.
    virtual void BackColor(std::int32_t color) = 0;
};

class CheckBox : public Editor {
public:
    virtual std::int16_t Value() = 0; ///< 0, 1, or 2 for grey.
    virtual void Value(std::int16_t value) = 0; ///< Another value: failure 380.
    virtual void Caption(std::u16string_view caption) = 0;
    virtual void Alignment(std::int16_t alignment) = 0; ///< 0 left, 1 right.
    virtual void BackColor(std::int32_t color) = 0;
};

class ComboBox : public Editor {
public:
    virtual std::u16string_view Text() = 0;
    virtual void Text(std::u16string_view text) = 0; ///< Need not be an item.
    virtual void AddItem(std::u16string_view item) = 0;
    virtual void Clear() = 0;
    virtual void BackColor(std::int32_t color) = 0;
};

class ListBox : public Editor {
public:
    virtual void Text(std::u16string_view text) = 0; ///< Selects the entry that equals it; none: nothing.
    virtual std::int32_t ListCount() = 0;
    virtual std::u16string_view List(std::int32_t index) = 0; ///< Empty past the last.
    virtual bool Selected(std::int32_t index) = 0;
    virtual void Selected(std::int32_t index, bool selected) = 0; ///< A bad index: failure 381.
    virtual void AddItem(std::u16string_view item) = 0;
    virtual void Clear() = 0;
    virtual void BackColor(std::int32_t color) = 0;
};

class DTPicker : public Editor {
public:
    virtual double Value() = 0; ///< Date serial, with the time of day.
    virtual void Value(double date) = 0;
    virtual void Format(std::int16_t format) = 0; ///< 3: by CustomFormat.
    virtual void CustomFormat(std::u16string_view format) = 0;
    virtual void DataFormat(std::u16string_view format) = 0;
    virtual void CalendarBackColor(std::int32_t color) = 0;
};

class MaskEdBox : public Editor {
public:
    virtual std::u16string_view Text() = 0;
    virtual void Text(std::u16string_view text) = 0; ///< One that does not fit the mask: failure 380.
    virtual std::u16string_view FormattedText() = 0;
    virtual std::u16string_view Mask() = 0;
    virtual void Mask(std::u16string_view mask) = 0; ///< One that cannot be read: failure 380.
    virtual std::u16string_view Format() = 0;
    virtual void Format(std::u16string_view format) = 0;
    virtual void PromptInclude(bool include) = 0;
    virtual void MaxLength(std::int16_t length) = 0;
    virtual std::int32_t SelStart() = 0;
    virtual void SelStart(std::int32_t position) = 0;
    virtual void BackColor(std::int32_t color) = 0;
};

class RichTextBox : public Editor {
public:
    virtual std::u16string_view Text() = 0;
    virtual void Text(std::u16string_view text) = 0;
    virtual void MaxLength(std::int32_t length) = 0;
    virtual std::int32_t SelStart() = 0;
    virtual void SelStart(std::int32_t position) = 0;
    virtual void BackColor(std::int32_t color) = 0;
};

class CommandButton : public Editor {
public:
    virtual std::u16string_view Caption() = 0;
    virtual void Caption(std::u16string_view caption) = 0;
};

/// The instances of an editor that holds something of its column. Instance 0 is always there.
template <class Kind>
class ControlArray {
public:
    virtual ~ControlArray() = default;

    virtual std::int16_t Count() = 0;
    virtual std::shared_ptr<Kind> Item(std::int16_t index) = 0; ///< One that is not there: failure 340.
    virtual void Load(std::int16_t index) = 0; ///< One that is there: failure 360.
    virtual void Unload(std::int16_t index) = 0; ///< One that is not there: failure 340.
};

} // namespace Tessellon
