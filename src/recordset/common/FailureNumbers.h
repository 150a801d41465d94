#pragma once

#include <cstdint>
#include <string_view>

/// The numbers by which recordsets fail, and by which failures of providers are told, whatever the provider.
namespace Tessellon::Common {

inline constexpr std::int32_t OutOfMemory = 7;
inline constexpr std::int32_t SubscriptOutOfRange = 9;
inline constexpr std::int32_t NoCurrentRecord = 3021;
inline constexpr std::int32_t Unspecified = -2147467259; // 80004005
inline constexpr std::int32_t PermissionDenied = -2147217911; // 80040E09
inline constexpr std::int32_t WrongCommand = -2147217900; // 80040E14
inline constexpr std::int32_t WaitedInVain = -2147217871; // 80040E31
inline constexpr std::int32_t NoSuchTable = -2147217865; // 80040E37
inline constexpr std::int32_t NotLetIn = -2147217843; // 80040E4D

/// The number of a failure that a provider tells by this SQLSTATE.
std::int32_t NumberOfState(std::u16string_view state);

} // namespace Tessellon::Common
