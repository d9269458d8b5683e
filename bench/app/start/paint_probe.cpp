// SPDX-License-Identifier: MIT
/// Preloaded into a Qt program: prints the resident memory when the first window has been painted, and ends
/// the program. So the real program is measured, without instrumentation of its own.
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <fstream>
#include <iostream>
#include <string>

namespace {

/// Resident memory of this process as the kernel reports it, e.g. "VmRSS:   45000 kB".
std::string residentMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            return line;
        }
    }
    return "VmRSS: 0 kB";
}

class PaintProbe : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !painted_) {
            painted_ = true;
            // All widgets of the window paint within the running event.
            QTimer::singleShot(0, this, [] {
                std::cout << residentMemory() << std::endl;
                _exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    bool painted_ = false;
};

void installProbe() {
    QCoreApplication::instance()->installEventFilter(new PaintProbe(QCoreApplication::instance()));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(installProbe)
