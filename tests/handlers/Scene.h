#pragma once

#include "platform/PlatformUnderTest.h"
#include "shell/TessellonSheet.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::HandlerTests {

/// A sheet of one kind of editor among others, and a user who does with it whatever can be done. Rows 1 to 24; the kind
/// stands in columns 1 and 4, a text in 2, a hidden text in 3, a date with callback fields in 5, a button in 6. Column
/// 7 has no editor, is never gone to, and holds the name of its row.
class Scene {
public:
    static constexpr std::int32_t rows = 24;
    static constexpr std::int32_t nameCol = 7;

    explicit Scene(FieldControlType kind);

    TessellonSheet* operator->() { return Sheet.get(); }
    [[nodiscard]] bool HasEnded() const { return Sheet == nullptr; }
    [[nodiscard]] EnginePlatform& Engine() { return platform_->Engine(); }
    [[nodiscard]] Hand& TheHand() { return platform_->TheHand(); }

    void Declare(); ///< The columns, and the build.
    void Fill(); ///< Empty rows to the full number, and a text in each cell.
    void LoadOthers(); ///< Another recordset, of three records.
    void Walk(); ///< All that a user and a host do, up to the end.
    void Type(std::u16string_view text);

    /// The names that stand in their column, from the top.
    [[nodiscard]] std::vector<std::u16string> Names();
    static std::u16string NameOf(std::int32_t row);

    std::unique_ptr<Contract::PlatformUnderTest> platform_;
    SheetPointer Sheet;

private:
    void Key(std::int16_t code, std::int16_t shift = 0);
    void UseEditor();
    void UseOtherColumns();
    void UseGrid();
    void CallMembers();
    template <class Call>
    void AsHost(const Call& call);

    FieldControlType kind_;
};

} // namespace Tessellon::HandlerTests
