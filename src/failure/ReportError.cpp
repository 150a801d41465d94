#include "failure/Frames.h"
#include "shell/RaiseEvent.h"
#include "shell/TessellonSheet.h"

#include <exception>

namespace Tessellon {

namespace {

constexpr std::int16_t criticalWithOk = 16;
constexpr std::u16string_view moduleLabel = u"TessellonSheet";
constexpr std::u16string_view lineEnd = u"\r\n";

void AppendField(std::u16string& message, std::u16string_view label, std::u16string_view value)
{
    message.append(label).append(u"\t : ").append(value);
}

void AppendLine(std::u16string& message, std::u16string_view label, std::u16string_view value)
{
    AppendField(message, label, value);
    message.append(lineEnd);
}

/// A blank line parts the errors of a connection.
void AppendErrors(std::u16string& message, const std::vector<ProviderError>& errors)
{
    for (const ProviderError& error : errors) {
        AppendLine(message, u" ADO Error #", DecimalText(error.Number));
        AppendLine(message, u" Description", error.Description);
        AppendLine(message, u" Native Error", DecimalText(error.NativeError));
        AppendLine(message, u" SQL Status", error.SQLState);
        AppendLine(message, u" Source", error.Source);
        message.append(lineEnd);
    }
}

void AppendFailure(std::u16string& message, std::int32_t number, std::u16string_view description,
                   std::u16string_view source)
{
    AppendLine(message, u"Error Number ", DecimalText(number));
    AppendLine(message, u"Description", Trim(description));
    AppendField(message, u"Source", source);
}

} // namespace

std::u16string DecimalText(std::int32_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// Whether a failure is to be told to nobody: the sheet was ended inside one of its events, or has told that its stack
/// is used up. That is told once.
bool TessellonSheet::IsSilent()
{
    if (HasEndedInside() || stack_ == Stack::Told)
        return true;
    if (stack_ == Stack::Spent)
        stack_ = Stack::Told;
    return false;
}

/// The handler of the standard frame. The message box comes first, and what it leaves in the record is what the host
/// gets; the description goes where the host expects the source, and the other way round.
void TessellonSheet::HandleFailure(const char16_t* procedure)
{
    TakeCaughtFailure();
    FailureRecord& record = ThreadFailureRecord();
    if (IsSilent()) {
        record.Clear();
        return;
    }
    if (APIGlobal::OfThread().ShowErrMessageFlag)
        ReportError(record.Number, std::u16string(record.Description), std::u16string(record.Source), procedure,
                    moduleLabel, nullptr);
    const FailureRecord now = record;
    RaiseEvent(ErrInfo, now.Number, now.Description, now.Source, now.HelpFile, DecimalText(now.HelpContext));
    record.Clear();
}

/// The handler of a load: the connection's errors are told one by one. A load that was given no connection fails
/// again here, and that failure is the host's.
void TessellonSheet::HandleLoadFailure(Connection* connection)
{
    TakeCaughtFailure();
    FailureRecord& record = ThreadFailureRecord();
    if (IsSilent()) {
        record.Clear();
        return;
    }
    if (APIGlobal::OfThread().ShowErrMessageFlag)
        ReportError(record.Number, std::u16string(record.Description), std::u16string(record.Source), u"DataSource",
                    moduleLabel, connection);
    if (connection == nullptr)
        Fail(91);
    const std::vector<ProviderError> errors = connection->Errors();
    for (const ProviderError& error : errors)
        RaiseEvent(ErrInfo, error.Number, error.Description, error.Source, error.HelpFile,
                   DecimalText(error.HelpContext));
    if (errors.empty()) {
        const FailureRecord now = record;
        RaiseEvent(ErrInfo, now.Number, now.Description, now.Source, now.HelpFile, DecimalText(now.HelpContext));
    }
    record.Clear();
}

/// Puts the message together and shows it, or raises, and absorbs, what is to be told. It cannot fail itself: a
/// statement of its own that fails is passed over, and the record keeps that failure.
void TessellonSheet::ReportError(std::int32_t errNumber, const std::u16string& errDescription,
                                 const std::u16string& errSource, std::u16string_view procedureName,
                                 std::u16string_view moduleName, Connection* connection)
{
    std::u16string message;
    std::vector<ProviderError> errors;
    const bool raise = APIGlobal::OfThread().RaiseErrorFlag;
    Ignoring(
        [&] {
            const std::u16string date(RunTime->Format(Value::OfDate(RunTime->Now()), u"Short Date"));
            message.append(u"Critical error occurs at ").append(date);
            message.append(u" in function ").append(procedureName);
            message.append(u" of module ").append(moduleName).append(lineEnd);
        },
        [&] {
            if (connection != nullptr)
                errors = connection->Errors();
        },
        [&] {
            if (raise)
                AbsorbRaises(errors);
            else if (!errors.empty())
                AppendErrors(message, errors);
            else
                AppendFailure(message, errNumber, errDescription, errSource);
        },
        [&] {
            if (raise)
                return;
            const HostCode hostCode(*this);
            RunTime->MessageBox(message, criticalWithOk);
        });
    LeaveIfEnded();
}

/// What raises leave behind that nobody hears: the last of the errors. Without errors it is the raise itself that
/// fails, for the record is empty by then and has no number to raise.
void TessellonSheet::AbsorbRaises(const std::vector<ProviderError>& errors)
{
    FailureRecord& record = ThreadFailureRecord();
    const Failure invalidRaise(5, {}, std::u16string(RunTime->FailureText(5)));
    if (errors.empty() || errors.back().Number == 0) {
        record.Take(invalidRaise);
        return;
    }
    const ProviderError& last = errors.back();
    record.Take(Failure(last.Number, last.Source, last.Description, last.HelpFile, last.HelpContext));
}

} // namespace Tessellon
