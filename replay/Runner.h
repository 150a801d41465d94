#pragma once

#include "Events.h"
#include "Output.h"
#include "Script.h"
#include "Stage.h"
#include "engine/Journal.h"
#include "engine/journal/ValueText.h"
#include "shell/TessellonSheet.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {

/// Plays a script: makes the sheet, runs the commands one by one, and writes down what is heard.
class Runner {
public:
    Runner(Stage& stage, Output& output);

    /// Runs all commands, or up to the one that ends the sheet.
    void Run(const Script& script);

    // What the commands work with.
    [[nodiscard]] TessellonSheet& Sheet() { return *sheet_; }
    [[nodiscard]] EnginePlatform& Platform() { return *stage_.Platform(); }
    [[nodiscard]] Hand& TheHand() { return stage_.TheHand(); }
    [[nodiscard]] Journal& TheJournal() { return *journal_; }
    [[nodiscard]] EventAnswers& AnswersTo(std::size_t event) { return answers_[event]; }
    void Line(std::u16string_view text);
    void Clock(double serial);
    /// Keys one after the other, up to one that failed.
    void Press(const std::vector<Stroke>& strokes);
    void End();

    /// Writes what a question asked for.
    template <class Value>
    void Answer(const Value& value)
    {
        Line(u"= " + ValueText(value));
    }

private:
    void RunDeeds(std::size_t event);
    void WriteException(std::int32_t number);

    Stage& stage_;
    Output& output_;
    std::vector<EventAnswers> answers_;
    std::shared_ptr<Journal> journal_;
    SheetPointer sheet_;
    int failures_ = 0; ///< Came out of what the user did.
    bool isOver_ = false; ///< The script has ended the sheet, or was played to its end.
};

} // namespace Tessellon::Replay
