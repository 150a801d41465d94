#pragma once

#include "Words.h"

#include <string>
#include <vector>

namespace Tessellon::Replay {

/// A member of the platform as `fail` names it, "Combo1(2).Text", in the journal's own words. A control or member that
/// is not there, and an index where none belongs, throw ScriptError.
std::u16string ReadMemberName(const Word& word);
/// All of them, the instances of an array by the first.
std::vector<std::u16string> MemberNames();

} // namespace Tessellon::Replay
