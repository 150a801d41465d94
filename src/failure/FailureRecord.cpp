#include "failure/FailureRecord.h"

namespace Tessellon {

void FailureRecord::Take(const Failure& failure)
{
    filled_ = true;
    Number = failure.Number;
    Source = failure.Source;
    Description = failure.Description;
    HelpFile = failure.HelpFile;
    HelpContext = failure.HelpContext;
}

void FailureRecord::Empty()
{
    *this = {};
}

FailureRecord& ThreadFailureRecord()
{
    static thread_local FailureRecord record;
    return record;
}

APIGlobal& APIGlobal::OfThread()
{
    static thread_local APIGlobal global;
    return global;
}

} // namespace Tessellon
