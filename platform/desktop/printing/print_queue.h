#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>
#include <optional>
#include <string>

/// The system's printers, each a queue of jobs on a server, in this system or another, and their
/// paper. A server that does not answer is given up after some seconds.
namespace platform::desktop {

/// The sheet of paper that a page is printed on.
struct Sheet {
    QPageLayout layout;    ///< with the margins that cannot be printed
    int resolution = 600;  ///< dots to the inch; finer ones only make the work of a print longer
};

/// The sheet that is usual where the user lives, A4 or Letter, with small margins.
Sheet Usual_Sheet();

struct Print_Queue {
    std::string name;
    std::string instance;  ///< one of the user's sets of options for the queue, if any
    Sheet sheet;
};

/// The user's default printer, else the system's. Nothing if there is none or none is reached.
std::optional<Print_Queue> Default_Queue();

/// Hands a PDF document over as a job. False if the queue does not take all of it; then nothing of
/// it is printed.
bool Send_To_Queue(const Print_Queue& queue, const QString& title, const QByteArray& pdf);

}  // namespace platform::desktop
