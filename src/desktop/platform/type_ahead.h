#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace varnello {

/// Lets a blank belong to a name that is being typed into a closed or an open combo. The toolkit
/// takes it for a wish to open or to choose.
class TypeAhead : public QObject {
public:
    /// Watches all combos of the program for as long as it lives.
    explicit TypeAhead(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QElapsedTimer typed_;  ///< since the last letter of a name
};

}  // namespace varnello
