#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Roads {

/// What nobody is to see of the texts by which a program connects: passwords, tokens and their like, in the form of a
/// URL or of keys with values. Where a text can be read in several ways, all of them count.
class Secrets {
public:
    /// Takes the secrets out of a text.
    void Gather(std::string_view text);
    [[nodiscard]] bool IsEmpty() const { return secrets_.empty(); }
    /// The words with "***" in place of each secret, as it was written and as it is meant, and of whatever stands
    /// behind a key like "password=" or as the password of a URL. A secret of one to three characters is found only by
    /// itself, not within a word.
    [[nodiscard]] std::string Hide(std::string_view words) const;

private:
    void Add(std::string_view secret);
    void AddWithEnds(std::string_view text);

    std::vector<std::string> secrets_; ///< The longest first.
};

/// Percent-encoded bytes as they are meant; a percent sign that encodes nothing stays.
std::string Decoded(std::string_view text);

} // namespace Roads
