#pragma once

#include "platform/Recordset.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace Tessellon {

class OdbcRecordset;
class OdbcSession;

/// How a data source is opened.
struct OdbcOptions {
    /// How long the server may take to let the connection in, at most, where the driver keeps such a limit. 0 and less:
    /// as long as it likes.
    std::int32_t LoginSeconds = 30;
};

/// A connection to any data source that has a driver for ODBC. It and its recordsets belong to one thread at a time.
class OdbcConnection final : public Connection {
public:
    /// Opens a data source by a connection text, as "DSN=orders;UID=ada;PWD=..." or
    /// "Driver=SQLite3;Database=orders.db". What driver or driver manager refuse is a failure of source "Recordset"
    /// with their words; passwords of the text show as "***" in them.
    static std::shared_ptr<OdbcConnection> Open(std::u16string_view connectionText, const OdbcOptions& options = {});

    /// A connection that is not open yet, for a host that wants Errors of a failed Connect.
    OdbcConnection();
    ~OdbcConnection() override;

    /// As Open. Recordsets of an earlier data source keep it open.
    void Connect(std::u16string_view connectionText, const OdbcOptions& options = {});

    /// Runs a query and gives its records, which are read when they are walked. Earlier recordsets of the connection
    /// that are still read are read to their ends first.
    /// Failures: a query that the driver refuses; one that gives no records, whose deeds are taken back where the data
    /// source can; no data source. A query that gives records is run whatever else it does.
    std::shared_ptr<OdbcRecordset> Query(std::u16string_view statement);

    /// What the last failing call said, of the connection or a recordset of it, all records of it in their order. The
    /// next Connect, Query or read of records empties it.
    const std::vector<ProviderError>& Errors() override;

private:
    std::shared_ptr<OdbcSession> session_;
};

} // namespace Tessellon
