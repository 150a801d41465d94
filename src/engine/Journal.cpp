#include "engine/Journal.h"

#include <utility>

namespace Tessellon {

Journal::Journal(std::shared_ptr<Platform> under)
    : under_(std::move(under))
    , grid_(u"MSFlexGrid1", Of(under_->MSFlexGrid1()), log_)
    , text_(std::make_shared<WatchedTextBox>(under_->Text1(), log_))
    , check_(std::make_shared<WatchedCheckBox>(under_->Check1(), log_))
    , combos_(u"Combo1", Of(under_->Combo1()), log_)
    , lists_(u"List1", Of(under_->List1()), log_)
    , picker_(std::make_shared<WatchedDTPicker>(under_->DTPicker1(), log_))
    , masks_(u"MaskEdBox1", Of(under_->MaskEdBox1()), log_)
    , richText_(std::make_shared<WatchedRichTextBox>(under_->RichTextBox1(), log_))
    , buttons_(u"Command1", Of(under_->Command1()), log_)
    , container_(u"UserControl", Of(under_->UserControl()), log_)
    , screen_(u"Screen", Of(under_->Screen()), log_)
{
}

Image& Journal::ImgAction(std::int16_t index)
{
    Image& image = under_->ImgAction(index);
    const std::u16string name = u"ImgAction(" + ValueText(index) + u")";
    return images_.try_emplace(index, name, Of(image), log_).first->second;
}

std::shared_ptr<Recordset> Journal::Watched(std::shared_ptr<Recordset> recordset)
{
    if (!recordset)
        return nullptr;
    return std::make_shared<WatchedRecordset>(u"Recordset", under_->Watched(std::move(recordset)), log_);
}

} // namespace Tessellon
