#pragma once

#include <ostream>

#include "engine/scores/score_store.h"
#include "engine/settings/data.h"

namespace varnello {

/// Writes the report over all games of the open score list: UTF-8 in columns of 14 characters, each
/// line ended by CR LF.
void WriteStat(std::ostream& out, const cScore& score, const cData& data, const DateTime& now,
               const DateForms& dates);

}  // namespace varnello
