#pragma once

#include <QMessageBox>
#include <optional>
#include <string_view>

#include "engine/desktop.h"

/// What a window asks before it calls the engine.
namespace varnello {

/// A question about something that can't be taken back; true for Yes. "No" is the default.
bool AskYesNo(QWidget* parent, std::string_view question,
              QMessageBox::Icon icon = QMessageBox::Question);

/// A save-file dialog for the statistics report, which asks before a file is overwritten; empty on
/// cancel.
std::optional<ChosenFile> AskForReportFile(QWidget* parent);

/// A box that tells a text as it stands, never as markup.
void TellInBox(QWidget* parent, const Phrase& text, QMessageBox::Icon icon);

}  // namespace varnello
