#pragma once

#include <string>

#include "services/rtf/TableBuffer.h"

namespace tagsmith::rtf {

/// Appends a table with its columns, its merged cells and its head; the bare content where there
/// are no rows.
void AppendTable(std::string& out, const BufferedTable& table);

}  // namespace tagsmith::rtf
