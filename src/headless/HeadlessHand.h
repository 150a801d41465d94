#pragma once

#include "engine/EnginePlatform.h"
#include "engine/input/Hand.h"

#include <memory>
#include <optional>

namespace Tessellon {

/// The user of a platform without a screen: each of his doings goes straight to the engines.
class HeadlessHand : public Hand {
public:
    explicit HeadlessHand(std::shared_ptr<EnginePlatform> platform)
        : platform_(std::move(platform))
    {
    }

    void Click(std::int32_t row, std::int32_t col) override;
    void DoubleClick(std::int32_t row, std::int32_t col) override;
    void Drag(std::int32_t row, std::int32_t col, std::int32_t toRow, std::int32_t toCol) override;
    void Scroll(std::int32_t topRow, std::int32_t leftCol) override;
    void MouseDown(float x, float y) override;
    void MouseUp(float x, float y) override;
    void MouseMove(float x, float y) override;
    void Hover(float x, float y) override;

    void Press(const Stroke& stroke) override;

    void Caret(std::int32_t position) override;
    void Select(std::int32_t item) override;
    void Toggle() override;
    void Push() override;
    void Pick(double date, bool withTime) override;
    void Over(OverEvent event, float x, float y) override;

    void FocusOut() override;
    void FocusIn() override;
    void WindowOut() override;
    void WindowIn() override;
    void Resize(float width, float height) override;
    void Wait() override {}

private:
    /// What the user does with his window in front.
    template <class Action>
    void InFront(const Action& action);
    template <class Action>
    void PressAndRelease(const Action& action);
    [[nodiscard]] bool IsInSheet(float x, float y) const;
    [[nodiscard]] bool IsThere(std::int32_t row, std::int32_t col) const;
    bool ClickCell(GridCell cell); ///< False for a cell that is not there, or a grid that takes no press.
    template <class Control>
    std::shared_ptr<Control> Focused() const;

    std::shared_ptr<EnginePlatform> platform_;
};

} // namespace Tessellon
