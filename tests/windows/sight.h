#pragma once

#include <QHeaderView>
#include <QMainWindow>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QWidget>

/// What a person sees of the windows, in words, one line for each thing.
namespace varnello::test {

struct Sight {
    /// The titles of the open windows but for the main one.
    QSet<QString> windows;
    /// "Window | thing"; what belongs to no window stands without the bar.
    QStringList lines;
    /// What is drawn rather than written: a number that is another when the screen shows another
    /// picture of it.
    QMap<QString, size_t> pictures;

    bool operator==(const Sight&) const = default;
};

/// What a caption says without its mark of the key.
QString Plain(const QString& caption);

/// The titles of columns; null if there are none.
const QHeaderView* HeaderOf(const QAbstractItemView& view);

/// What a person would call it: its name, or else its caption.
QString NameOf(const QWidget& widget);

/// Adds what is seen of a window to `sight`.
void Look(QWidget& window, Sight& sight);

/// Adds which commands can't be given now, which are ticked, and the same of their buttons.
void LookAtCommands(const QMainWindow& window, Sight& sight);

/// Adds what a screen reader is told of the table: its piles with their cards.
void Listen(QWidget& table, Sight& sight);

/// Adds the picture that the screen shows of this part of a window.
void LookAtPicture(const QWidget& part, const QString& name, Sight& sight);

/// What has changed: "- " for what is gone, "+ " for what is new, "~ " for another picture.
/// A window that is gone is told by its title alone.
QStringList Changes(const Sight& before, const Sight& now);

}  // namespace varnello::test
