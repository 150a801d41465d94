#pragma once

#include "platform/Recordset.h"

#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Odbc {

/// The driver that a connection text names, as it is written there; none with a DSN.
std::u16string DriverOf(std::u16string_view connectionText);

/// The values of a connection text, as "DSN=orders;UID=ada;PWD={a;b}", that nobody is to read: of PWD, Password and
/// every other key that tells of a password, a secret, a token or a passphrase.
std::vector<std::u16string> SecretsOf(std::u16string_view connectionText);

/// Puts asterisks for every secret in the descriptions, also for one that begins in an error and ends in the next:
/// drivers cut long words into several errors.
void Mask(std::vector<ProviderError>& errors, const std::vector<std::u16string>& secrets);

} // namespace Tessellon::Odbc
