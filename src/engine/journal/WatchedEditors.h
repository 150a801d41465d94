#pragma once

#include "engine/journal/Watch.h"
#include "platform/Editors.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Tessellon {

/// What all editors share. A control says its name and its class whatever is to fail.
template <class Kind>
class WatchedEditor : public Watch<Kind> {
public:
    using typename Watch<Kind>::Int;
    using typename Watch<Kind>::TextView;

    WatchedEditor(std::shared_ptr<Kind> under, std::shared_ptr<JournalLog> log)
        : Watch<Kind>(std::u16string(under->Name()), under, std::move(log))
    {
    }

    TextView Name() override { return this->under_->Name(); }
    TextView ClassName() override { return this->under_->ClassName(); }

    bool Visible() override { return this->template Read<bool>(u"Visible", &Editor::Visible); }
    void Visible(bool visible) override { this->Write(u"Visible", &Editor::Visible, visible); }
    bool Enabled() override { return this->template Read<bool>(u"Enabled", &Editor::Enabled); }
    void Enabled(bool enabled) override { this->Write(u"Enabled", &Editor::Enabled, enabled); }
    void ZOrder(Int position) override { this->Call(u"ZOrder", &Editor::ZOrder, position); }
    void SetFocus() override { this->Call(u"SetFocus", &Editor::SetFocus); }
    TextView Tag() override { return this->template Read<TextView>(u"Tag", &Editor::Tag); }
    void Tag(TextView tag) override { this->Write(u"Tag", &Editor::Tag, tag); }

    float Left() override { return this->template Read<float>(u"Left", &Editor::Left); }
    void Left(float left) override { this->Write(u"Left", &Editor::Left, left); }
    float Top() override { return this->template Read<float>(u"Top", &Editor::Top); }
    void Top(float top) override { this->Write(u"Top", &Editor::Top, top); }
    float Width() override { return this->template Read<float>(u"Width", &Editor::Width); }
    void Width(float width) override { this->Write(u"Width", &Editor::Width, width); }
    float Height() override { return this->Read(u"Height", &Editor::Height); }
    void Move(float left, float top, float width, float height) override
    {
        this->Call(u"Move", &Editor::Move, left, top, width, height);
    }

    void FontName(TextView name) override { this->Write(u"FontName", &Editor::FontName, name); }
    void FontSize(double points) override { this->Write(u"FontSize", &Editor::FontSize, points); }
};

class WatchedTextBox final : public WatchedEditor<TextBox> {
public:
    using WatchedEditor::WatchedEditor;

    TextView Text() override { return Read<TextView>(u"Text", &TextBox::Text); }
    void Text(TextView text) override { Write(u"Text", &TextBox::Text, text); }
    void MaxLength(Long length) override { Write(u"MaxLength", &TextBox::MaxLength, length); }
    Long SelStart() override { return Read<Long>(u"SelStart", &TextBox::SelStart); }
    void SelStart(Long position) override { Write(u"SelStart", &TextBox::SelStart, position); }
    void Alignment(Int alignment) override { Write(u"Alignment", &TextBox::Alignment, alignment); }
    void BackColor(Long color) override { Write(u"BackColor", &TextBox::BackColor, color); }
};

class WatchedCheckBox final : public WatchedEditor<CheckBox> {
public:
    using WatchedEditor::WatchedEditor;

    Int Value() override { return Read<Int>(u"Value", &CheckBox::Value); }
    void Value(Int value) override { Write(u"Value", &CheckBox::Value, value); }
    void Caption(TextView caption) override { Write(u"Caption", &CheckBox::Caption, caption); }
    void Alignment(Int alignment) override { Write(u"Alignment", &CheckBox::Alignment, alignment); }
    void BackColor(Long color) override { Write(u"BackColor", &CheckBox::BackColor, color); }
};

class WatchedComboBox final : public WatchedEditor<ComboBox> {
public:
    using WatchedEditor::WatchedEditor;

    TextView Text() override { return Read<TextView>(u"Text", &ComboBox::Text); }
    void Text(TextView text) override { Write(u"Text", &ComboBox::Text, text); }
    void AddItem(TextView item) override { Call(u"AddItem", &ComboBox::AddItem, item); }
    void Clear() override { Call(u"Clear", &ComboBox::Clear); }
    void BackColor(Long color) override { Write(u"BackColor", &ComboBox::BackColor, color); }
};

class WatchedListBox final : public WatchedEditor<ListBox> {
public:
    using WatchedEditor::WatchedEditor;

    void Text(TextView text) override { Write(u"Text", &ListBox::Text, text); }
    Long ListCount() override { return Read(u"ListCount", &ListBox::ListCount); }
    TextView List(Long index) override { return Read(u"List", &ListBox::List, index); }
    bool Selected(Long index) override { return Read<bool>(u"Selected", &ListBox::Selected, index); }
    void Selected(Long index, bool selected) override { Write(u"Selected", &ListBox::Selected, index, selected); }
    void AddItem(TextView item) override { Call(u"AddItem", &ListBox::AddItem, item); }
    void Clear() override { Call(u"Clear", &ListBox::Clear); }
    void BackColor(Long color) override { Write(u"BackColor", &ListBox::BackColor, color); }
};

class WatchedDTPicker final : public WatchedEditor<DTPicker> {
public:
    using WatchedEditor::WatchedEditor;

    double Value() override { return Read<double>(u"Value", &DTPicker::Value); }
    void Value(double date) override
    {
        Counted(u"Value", JournalLog::Form::Write, DateValue{date});
        under_->Value(date);
    }
    void Format(Int format) override { Write(u"Format", &DTPicker::Format, format); }
    void CustomFormat(TextView format) override { Write(u"CustomFormat", &DTPicker::CustomFormat, format); }
    void DataFormat(TextView format) override { Write(u"DataFormat", &DTPicker::DataFormat, format); }
    void CalendarBackColor(Long color) override { Write(u"CalendarBackColor", &DTPicker::CalendarBackColor, color); }
};

class WatchedMaskEdBox final : public WatchedEditor<MaskEdBox> {
public:
    using WatchedEditor::WatchedEditor;

    TextView Text() override { return Read<TextView>(u"Text", &MaskEdBox::Text); }
    void Text(TextView text) override { Write(u"Text", &MaskEdBox::Text, text); }
    TextView FormattedText() override { return Read(u"FormattedText", &MaskEdBox::FormattedText); }
    TextView Mask() override { return Read<TextView>(u"Mask", &MaskEdBox::Mask); }
    void Mask(TextView mask) override { Write(u"Mask", &MaskEdBox::Mask, mask); }
    TextView Format() override { return Read<TextView>(u"Format", &MaskEdBox::Format); }
    void Format(TextView format) override { Write(u"Format", &MaskEdBox::Format, format); }
    void PromptInclude(bool include) override { Write(u"PromptInclude", &MaskEdBox::PromptInclude, include); }
    void MaxLength(Int length) override { Write(u"MaxLength", &MaskEdBox::MaxLength, length); }
    Long SelStart() override { return Read<Long>(u"SelStart", &MaskEdBox::SelStart); }
    void SelStart(Long position) override { Write(u"SelStart", &MaskEdBox::SelStart, position); }
    void BackColor(Long color) override { Write(u"BackColor", &MaskEdBox::BackColor, color); }
};

class WatchedRichTextBox final : public WatchedEditor<RichTextBox> {
public:
    using WatchedEditor::WatchedEditor;

    TextView Text() override { return Read<TextView>(u"Text", &RichTextBox::Text); }
    void Text(TextView text) override { Write(u"Text", &RichTextBox::Text, text); }
    void MaxLength(Long length) override { Write(u"MaxLength", &RichTextBox::MaxLength, length); }
    Long SelStart() override { return Read<Long>(u"SelStart", &RichTextBox::SelStart); }
    void SelStart(Long position) override { Write(u"SelStart", &RichTextBox::SelStart, position); }
    void BackColor(Long color) override { Write(u"BackColor", &RichTextBox::BackColor, color); }
};

class WatchedCommandButton final : public WatchedEditor<CommandButton> {
public:
    using WatchedEditor::WatchedEditor;

    TextView Caption() override { return Read<TextView>(u"Caption", &CommandButton::Caption); }
    void Caption(TextView caption) override { Write(u"Caption", &CommandButton::Caption, caption); }
};

/// An array hands out the same watched instance as long as the one under it is the same.
template <class Kind, class WatchedKind>
class WatchedArray final : public Watch<ControlArray<Kind>> {
public:
    using Array = ControlArray<Kind>;
    using typename Watch<Array>::Int;
    using Watch<Array>::Watch;

    Int Count() override { return this->Read(u"Count", &Array::Count); }
    std::shared_ptr<Kind> Item(Int index) override
    {
        std::shared_ptr<Kind> under = this->Read(u"Item", &Array::Item, index);
        const auto place = static_cast<std::size_t>(index);
        if (place >= items_.size())
            items_.resize(place + 1);
        std::shared_ptr<WatchedKind>& item = items_[place];
        if (!item || item->Under() != under)
            item = std::make_shared<WatchedKind>(std::move(under), this->log_);
        return item;
    }
    void Load(Int index) override { this->Call(u"Load", &Array::Load, index); }
    void Unload(Int index) override { this->Call(u"Unload", &Array::Unload, index); }

private:
    std::vector<std::shared_ptr<WatchedKind>> items_;
};

} // namespace Tessellon
