#pragma once
// The moment a dialog has first been painted, for the start-up benchmark and the bare dialog it
// is compared with: both print the milliseconds since their parent started them, then close.

#include <QDialog>
#include <QEvent>
#include <QTimer>

#include <cstdio>
#include <ctime>

namespace bench {

// The clock the parent reads before it starts a child and the child reads at the end: the
// same for every process of the machine.
inline qint64 monotonicNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

// Prints the time since the parent started this process once the dialog's first paint is
// through, and closes the dialog.
class FirstPaint : public QObject
{
public:
    FirstPaint(QDialog& dialog, qint64 startNs) : m_dialog(dialog), m_startNs(startNs)
    {
        dialog.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &m_dialog && event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            // The children paint in the same pass, after the dialog: the pass is over once the
            // event loop comes round again.
            QTimer::singleShot(0, &m_dialog, [this] {
                std::printf("%.3f\n", double(monotonicNs() - m_startNs) / 1e6);
                std::fflush(stdout);
                m_dialog.done(QDialog::Rejected);
            });
        }
        return false;
    }

private:
    QDialog& m_dialog;
    qint64 m_startNs;
    bool m_seen = false;
};

} // namespace bench
