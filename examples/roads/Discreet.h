#pragma once

#include "platform/Recordset.h"
#include "roads/Secrets.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Roads {

/// The text without the secrets.
std::u16string Hidden(const Secrets& secrets, std::u16string_view text);

/// A connection in whose errors no secret is seen.
class DiscreetConnection final : public Tessellon::Connection {
public:
    DiscreetConnection(std::shared_ptr<Tessellon::Connection> connection, Secrets secrets)
        : connection_(std::move(connection))
        , secrets_(std::move(secrets))
    {
    }
    const std::vector<Tessellon::ProviderError>& Errors() override;

private:
    std::shared_ptr<Tessellon::Connection> connection_;
    Secrets secrets_;
    std::vector<Tessellon::ProviderError> errors_;
};

/// Records in whose failures no secret is seen.
class DiscreetRecordset final : public Tessellon::Recordset {
public:
    DiscreetRecordset(std::shared_ptr<Tessellon::Recordset> records, Secrets secrets)
        : records_(std::move(records))
        , secrets_(std::move(secrets))
    {
    }
    bool AtEnd() override;
    void MoveFirst() override;
    void MoveNext() override;
    std::int32_t FieldCount() override;
    std::int32_t FieldType(std::int32_t field) override;
    Tessellon::Value FieldValue(std::int32_t field) override;

private:
    template <class Call>
    auto Ask(const Call& call);

    std::shared_ptr<Tessellon::Recordset> records_;
    Secrets secrets_;
};

} // namespace Roads
