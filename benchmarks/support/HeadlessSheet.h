#pragma once

#include "engine/EnginePlatform.h"
#include "shell/TessellonSheet.h"

#include <memory>
#include <string>

namespace Bench {

/// A sheet without a screen, with the columns of the records.
struct HeadlessSheet {
    HeadlessSheet();

    std::shared_ptr<Tessellon::EnginePlatform> Platform;
    Tessellon::SheetPointer Sheet;
};

/// Loads the records of a database that the words behind the query leave, as usual all.
void Load(Tessellon::TessellonSheet& sheet, const std::string& database, const std::string& limit = "");

} // namespace Bench
