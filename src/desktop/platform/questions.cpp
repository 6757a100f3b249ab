#include "desktop/platform/questions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr QSize kFileDialogSize(760, 500);

struct Questions {
    Q_DECLARE_TR_FUNCTIONS(Questions)
};

int RunBox(QWidget* parent, const QString& text, QMessageBox::Icon icon,
           QMessageBox::StandardButtons buttons, QMessageBox::StandardButton byDefault) {
    QMessageBox box(icon, ToQt(kProductName), text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(byDefault);
    return box.exec();
}

}  // namespace

bool AskYesNo(QWidget* parent, std::string_view question, QMessageBox::Icon icon) {
    return RunBox(parent, Localized(question), icon, QMessageBox::Yes | QMessageBox::No,
                  QMessageBox::No) == QMessageBox::Yes;
}

void TellInBox(QWidget* parent, const Phrase& text, QMessageBox::Icon icon) {
    RunBox(parent, Localized(text), icon, QMessageBox::Ok, QMessageBox::Ok);
}

std::optional<ChosenFile> AskForReportFile(QWidget* parent) {
    QFileDialog dialog(parent, Questions::tr("Export Statistics"),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       Questions::tr("Text File (*.txt)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(QStringLiteral("Scoreboard"));
    dialog.resize(kFileDialogSize);
    if (dialog.exec() != QDialog::Accepted) return {};
    const QString file = dialog.selectedFiles().value(0);
    if (file.isEmpty()) return {};
    return ChosenFile{.Path = file.toStdU16String(),
                      .Name = QDir::toNativeSeparators(file).toStdString()};
}

}  // namespace varnello
