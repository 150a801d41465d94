#include "Runner.h"

#include "engine/Failures.h"
#include "engine/runtime/Calendar.h"

#include <exception>
#include <new>

namespace Tessellon::Replay {

namespace {

constexpr float startWidth = 9600;
constexpr float startHeight = 4800;

/// The saved properties of the sheet in the script's form.
class SavedProperties final : public PropertyBag {
public:
    Font ReadFont(std::u16string_view /*name*/, const Font& /*byDefault*/) override { return {u"Sans", 8}; }
    bool ReadTruth(std::u16string_view /*name*/, bool /*byDefault*/) override { return true; }
    void WriteFont(std::u16string_view /*name*/, const Font& /*font*/, const Font& /*byDefault*/) override {}
    void WriteTruth(std::u16string_view /*name*/, bool /*truth*/, bool /*byDefault*/) override {}
};

/// Marks a deed of the host as running while it is.
class RunningMark {
public:
    explicit RunningMark(bool& isRunning)
        : isRunning_(isRunning)
    {
        isRunning_ = true;
    }
    ~RunningMark() { isRunning_ = false; }
    RunningMark(const RunningMark&) = delete;
    RunningMark& operator=(const RunningMark&) = delete;

private:
    bool& isRunning_;
};

} // namespace

Runner::Runner(Stage& stage, Output& output)
    : stage_(stage)
    , output_(output)
    , answers_(EventForms().size())
    , journal_(std::make_shared<Journal>(stage.Platform()))
{
}

void Runner::Run(const Script& script)
{
    stage_.Listen({.MessageBox = [this](std::u16string_view text) { Line(u"box " + ValueText(text)); },
                   .UnhandledFailure =
                       [this](const Failure& failure) {
                           ++failures_;
                           WriteException(failure.Number);
                       }});
    Clock(SerialOf({.Year = 2024, .Month = 3, .Day = 15, .Hour = 10, .Minute = 30}));
    journal_->Notes(script.AsksForJournal);
    sheet_ = TessellonSheet::Create(journal_);
    ListenToEvents(*sheet_, {.Heard = [this](std::size_t event, std::u16string_view line) -> const EventAnswers& {
                                 Line(line);
                                 return answers_[event];
                             },
                             .Done = [this](std::size_t event) { RunDeeds(event); }});
    SavedProperties saved;
    sheet_->UserControl_ReadProperties(saved);
    TheHand().Resize(startWidth, startHeight);

    for (const Command& command : script.Commands) {
        output_.Echo(command.Line);
        try {
            command.Run(*this);
        } catch (const Failure& failure) {
            WriteException(failure.Number);
        } catch (const std::bad_alloc&) {
            WriteException(7);
        } catch (const std::exception&) {
            WriteException(5);
        }
        if (isOver_)
            return;
    }
    isOver_ = true;
}

void Runner::Line(std::u16string_view text)
{
    if (!isOver_)
        output_.Line(text);
}

void Runner::Clock(double serial)
{
    Platform().Functions().Functions().Clock([serial] { return serial; });
}

void Runner::Press(const std::vector<Stroke>& strokes)
{
    const int failuresBefore = failures_;
    for (const Stroke& stroke : strokes) {
        if (isOver_ || failures_ != failuresBefore)
            return;
        TheHand().Press(stroke);
    }
}

/// Nothing that the sheet does while it ends, or behind that in the call that ended it, is heard.
void Runner::End()
{
    isOver_ = true;
    sheet_.reset();
}

void Runner::RunDeeds(std::size_t event)
{
    for (const std::unique_ptr<EventAnswers::Deed>& deed : answers_[event].Deeds) {
        if (deed->IsRunning)
            continue;
        const RunningMark mark(deed->IsRunning);
        deed->Run(*this);
        if (isOver_)
            return;
    }
    if (const std::optional<std::int32_t> number = answers_[event].Throws)
        Fail(*number, u"Host");
}

void Runner::WriteException(std::int32_t number)
{
    Line(u"exception " + ValueText(number));
}

} // namespace Tessellon::Replay
