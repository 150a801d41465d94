#include "failure/Frames.h"
#include "shell/RaiseEvent.h"
#include "shell/TessellonSheet.h"

#include <exception>
#include <new>
#include <stdexcept>
#include <typeinfo>

namespace Tessellon {

namespace {

constexpr std::int16_t criticalWithOk = 16;
constexpr std::u16string_view moduleLabel = u"TessellonSheet";
constexpr std::u16string_view lineEnd = u"\r\n";

void AppendField(std::u16string& message, std::u16string_view label, std::u16string_view value)
{
    message.append(label).append(u"\t : ").append(value);
}

} // namespace

std::u16string DecimalText(std::int32_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// Puts the failure that is being caught into the record, with the platform's number for one of the standard library.
void TessellonSheet::TakeCaughtFailure()
{
    const auto take = [this](std::int32_t number) {
        ThreadFailureRecord().Take(
            Failure(number, std::u16string(moduleLabel), std::u16string(RunTime->FailureText(number))));
    };
    try {
        throw;
    } catch (const Failure& failure) {
        ThreadFailureRecord().Take(failure);
    } catch (const std::bad_alloc&) {
        take(7);
    } catch (const std::length_error&) {
        take(7);
    } catch (const std::out_of_range&) {
        take(9);
    } catch (const std::bad_cast&) {
        take(13);
    } catch (const std::overflow_error&) {
        take(6);
    } catch (...) {
        take(5);
    }
}

/// The handler of the standard frame. The message box comes first, and what it leaves in the record is what the host
/// gets; the description goes where the host expects the source, and the other way round.
void TessellonSheet::HandleFailure(const char16_t* procedure)
{
    TakeCaughtFailure();
    // A host that answers each report with a call that fails again would use up what is left.
    if (StackUsed() > stackBudget_ / 6 * 7)
        return;
    FailureRecord& record = ThreadFailureRecord();
    if (ThreadModuleFlags().ShowErrMessageFlag)
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
    if (ThreadModuleFlags().ShowErrMessageFlag)
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

void TessellonSheet::ReportError(std::int32_t errNumber, const std::u16string& errDescription,
                                 const std::u16string& errSource, std::u16string_view procedureName,
                                 std::u16string_view moduleName, Connection* connection)
{
    FailureRecord& record = ThreadFailureRecord();
    std::u16string message;
    std::vector<ProviderError> errors;
    const bool raise = ThreadModuleFlags().RaiseErrorFlag;
    Ignoring(
        [&] {
            message.append(u"Critical error occurs at ")
                .append(RunTime->Format(Value::OfDate(RunTime->Now()), u"Short Date"))
                .append(u" in function ")
                .append(procedureName)
                .append(u" of module ")
                .append(moduleName)
                .append(lineEnd);
        },
        [&] {
            if (connection != nullptr)
                errors = connection->Errors();
        });
    for (const ProviderError& error : errors) {
        if (raise) {
            // A raise with the number 0 is itself invalid.
            const bool valid = error.Number != 0;
            record.Take(valid
                            ? Failure(error.Number, error.Source, error.Description, error.HelpFile, error.HelpContext)
                            : Failure(5, {}, std::u16string(RunTime->FailureText(5))));
            continue;
        }
        AppendField(message, u" ADO Error #", DecimalText(error.Number));
        message.append(lineEnd);
        AppendField(message, u" Description", error.Description);
        message.append(lineEnd);
        AppendField(message, u" Native Error", DecimalText(error.NativeError));
        message.append(lineEnd);
        AppendField(message, u" SQL Status", error.SQLState);
        message.append(lineEnd);
        AppendField(message, u" Source", error.Source);
        message.append(lineEnd).append(lineEnd);
    }
    if (errors.empty() && raise)
        record.Take(Failure(5, {}, std::u16string(RunTime->FailureText(5))));
    if (raise)
        return;
    if (errors.empty()) {
        AppendField(message, u"Error Number ", DecimalText(errNumber));
        message.append(lineEnd);
        AppendField(message, u"Description", Trim(errDescription));
        message.append(lineEnd);
        AppendField(message, u"Source", errSource);
    }
    Ignoring([&] { RunTime->MessageBox(message, criticalWithOk); });
    LeaveIfEnded();
}

} // namespace Tessellon
