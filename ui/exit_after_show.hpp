#pragma once
// For the start-up bench: with BM_EXIT_AFTER_SHOW set, a program prints the
// moment its first window reached the screen ("shown_ns=" and the realtime
// clock in nanoseconds) and ends there.
#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace bm::ui {

inline bool ExitAfterShowRequested() { return qEnvironmentVariableIsSet("BM_EXIT_AFTER_SHOW"); }

class FirstPaintExit : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !armed_) {
            armed_ = true;
            // After this paint the frame goes to the screen; the next turn of the loop is the first one with it there.
            QTimer::singleShot(0, [] {
                timespec now{};
                clock_gettime(CLOCK_REALTIME, &now);
                std::printf("shown_ns=%lld\n", static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
                std::fflush(nullptr);
                std::_Exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool armed_ = false;
};

inline void ExitAfterFirstPaint(QWidget* window) {
    if (window == nullptr) return;
    window->installEventFilter(new FirstPaintExit(window));
    window->update();
}

}  // namespace bm::ui
