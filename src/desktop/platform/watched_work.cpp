#include "desktop/platform/watched_work.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

using namespace std::chrono_literals;

constexpr auto kMoment = 300ms;       // what a person waits for without a word
constexpr auto kLastMoment = 1000ms;  // for work that was stopped to clean up
constexpr int kLook = 40;             // milliseconds between two looks at the progress
constexpr int kSteps = 1000;
constexpr int kBarWidth = 300;  // pixels

struct Work {
    Progress progress;
    std::function<void(Progress&)> work;
    std::mutex mutex;
    std::condition_variable ended;
    bool done = false;

    void Run() {
        work(progress);
        const std::lock_guard lock(mutex);
        done = true;
        ended.notify_all();
    }
    bool WaitFor(std::chrono::milliseconds time) {
        std::unique_lock lock(mutex);
        return ended.wait_for(lock, time, [this] { return done; });
    }
};

class ProgressBox : public QDialog {
public:
    ProgressBox(QWidget* parent, const QString& what, Work& work) : QDialog(parent) {
        setWindowTitle(ToQt(kProductName));
        auto* bar = new QProgressBar;
        bar->setRange(0, kSteps);
        bar->setMinimumWidth(kBarWidth);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        auto* all = new QVBoxLayout(this);
        all->addWidget(new QLabel(what));
        all->addWidget(bar);
        all->addWidget(buttons);
        auto* look = new QTimer(this);
        connect(look, &QTimer::timeout, this, [this, bar, &work] {
            const auto whole = static_cast<double>(work.progress.Whole);
            const auto done = static_cast<double>(work.progress.Done);
            if (whole > 0) bar->setValue(static_cast<int>(std::min(done / whole, 1.0) * kSteps));
            if (work.WaitFor(0ms)) accept();
        });
        look->start(kLook);
    }
};

}  // namespace

bool DoWatched(QWidget* parent, const QString& what, std::int64_t whole,
               std::function<void(Progress&)> work) {
    const auto shared = std::make_shared<Work>();
    shared->progress.Whole = whole;
    shared->work = std::move(work);
    std::thread([shared] { shared->Run(); }).detach();
    if (shared->WaitFor(kMoment)) return true;
    if (ProgressBox(parent, what, *shared).exec() == QDialog::Accepted) return true;
    shared->progress.Stopped = true;
    (void)shared->WaitFor(kLastMoment);
    return false;
}

}  // namespace varnello
