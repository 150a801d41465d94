#pragma once

#include "engine/journal/Watch.h"
#include "platform/Container.h"
#include "platform/Recordset.h"

namespace Tessellon {

class WatchedContainer final : public Watch<Container> {
public:
    using Watch::Watch;

    float ScaleWidth() override { return Read(u"ScaleWidth", &Container::ScaleWidth); }
    float ScaleHeight() override { return Read(u"ScaleHeight", &Container::ScaleHeight); }
    float TextWidth(TextView text) override { return Read(u"TextWidth", &Container::TextWidth, text); }
    void FontSize(double points) override { Write(u"FontSize", &Container::FontSize, points); }
    Font AmbientFont() override { return Read(u"AmbientFont", &Container::AmbientFont); }
    Long hWnd() override { return Read(u"hWnd", &Container::hWnd); }
    void PropertyChanged(TextView name) override { Call(u"PropertyChanged", &Container::PropertyChanged, name); }
    void SetFocus() override { Call(u"SetFocus", &Container::SetFocus); }
};

class WatchedScreen final : public Watch<Screen> {
public:
    using Watch::Watch;

    void MousePointer(Int shape) override { Write(u"MousePointer", &Screen::MousePointer, shape); }
    float TwipsPerPixelY() override { return Read(u"TwipsPerPixelY", &Screen::TwipsPerPixelY); }
};

class WatchedImage final : public Watch<Image> {
public:
    using Watch::Watch;

    Picture GetPicture() override { return Read(u"Picture", &Image::GetPicture); }
};

class WatchedRecordset final : public Watch<Recordset> {
public:
    using Watch::Watch;

    bool AtEnd() override { return Read(u"EOF", &Recordset::AtEnd); }
    void MoveFirst() override { Call(u"MoveFirst", &Recordset::MoveFirst); }
    void MoveNext() override { Call(u"MoveNext", &Recordset::MoveNext); }
    Long FieldCount() override { return Read(u"FieldCount", &Recordset::FieldCount); }
    Long FieldType(Long field) override { return Read(u"FieldType", &Recordset::FieldType, field); }
    Value FieldValue(Long field) override { return Read(u"FieldValue", &Recordset::FieldValue, field); }
};

} // namespace Tessellon
