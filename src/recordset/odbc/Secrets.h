#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Odbc {

/// The values of a connection text, as "DSN=orders;UID=ada;PWD={a;b}", that nobody is to read: of PWD, Password and
/// every other key that tells of a password, a secret, a token or a passphrase.
std::vector<std::u16string> SecretsOf(std::u16string_view connectionText);

/// The words with asterisks for every secret in them.
std::u16string Masked(std::u16string words, const std::vector<std::u16string>& secrets);

} // namespace Tessellon::Odbc
