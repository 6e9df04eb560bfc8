// The printing service is asked with its own library, not through the toolkit, which waits without
// an end for a server that hangs and does not tell whether a job was taken.

#include "platform/desktop/printing/print_queue.h"

#include <QPageSize>
#include <QRectF>
#include <QSizeF>
#include <algorithm>
#include <cstdint>
#include <cups/cups.h>
#include <cups/pwg.h>
#include <langinfo.h>
#include <memory>

namespace platform::desktop {

namespace {

constexpr int Connect_Patience = 2000;  ///< milliseconds

/// How long one answer may take, in seconds: the chart window opens meanwhile, or the user has
/// asked for a print and waits for it.
constexpr double Question_Patience = 2;
constexpr double Job_Patience = 10;

constexpr char Pdf[] = "application/pdf";

using Server = std::unique_ptr<http_t, decltype(&httpClose)>;

struct Free_Destination {
    void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, Free_Destination>;
using Details = std::unique_ptr<cups_dinfo_t, decltype(&cupsFreeDestInfo)>;

const char* No_Password(const char*, http_t*, const char*, const char*, void*) {
    return nullptr;
}

bool Is_Good(ipp_status_t answer) {
    return answer < IPP_STATUS_REDIRECTION_OTHER_SITE;
}

int Give_Up(http_t*, void*) {
    return 0;
}

/// Null if the server is not there or does not answer: the library's further questions may go over
/// connections of its own, on which it has all the time in the world.
Server Connect() {
    // The library would ask for a password on the terminal.
    cupsSetPasswordCB2(No_Password, nullptr);
    Server server(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                               Connect_Patience, nullptr),
                  &httpClose);
    if (!server) return server;
    httpSetTimeout(server.get(), Question_Patience, Give_Up, nullptr);
    ipp_t* answer = cupsDoRequest(server.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
    if (answer == nullptr) server.reset();
    ippDelete(answer);
    return server;
}

/// A queue that has answered.
struct Reached {
    Server server{nullptr, &httpClose};
    Destination destination;
    Details details{nullptr, &cupsFreeDestInfo};

    explicit operator bool() const { return details != nullptr; }
};

/// No name is the default queue.
Reached Reach(const char* name, const char* instance) {
    Reached queue;
    queue.server = Connect();
    if (!queue.server) return queue;
    queue.destination.reset(cupsGetNamedDest(queue.server.get(), name, instance));
    if (!queue.destination) return queue;
    queue.details.reset(cupsCopyDestInfo(queue.server.get(), queue.destination.get()));
    return queue;
}

QPageLayout Layout_Of(const QPageSize& size, QMarginsF millimetres) {
    return {size, QPageLayout::Portrait, millimetres, QPageLayout::Millimeter};
}

/// Lengths of paper come in hundredths of a millimetre. A printer that tells of none has the usual.
Sheet Sheet_Of(const cups_size_t& size) {
    const QPageLayout layout =
        Layout_Of(QPageSize(QSizeF(size.width, size.length) / 100, QPageSize::Millimeter),
                  QMarginsF(size.left, size.top, size.right, size.bottom) / 100);
    return layout.paintRect().isEmpty() ? Usual_Sheet() : Sheet{layout};
}

/// An attribute of a collection; 0 if it has none of that name.
int Length_In(ipp_t* collection, const char* name) {
    return ippGetInteger(ippFindAttribute(collection, name, IPP_TAG_INTEGER), 0);
}

/// The paper that the user has chosen for the queue, by any of the kinds of names for one.
std::optional<cups_size_t> Chosen_Paper(const Reached& queue) {
    cups_dest_t* destination = queue.destination.get();
    cups_size_t size{};
    for (const char* option : {"media", "PageSize"}) {
        const char* name = cupsGetOption(option, destination->num_options, destination->options);
        if (name == nullptr) continue;
        const pwg_media_t* known = pwgMediaForPWG(name);
        if (known == nullptr) known = pwgMediaForLegacy(name);
        if (known == nullptr) known = pwgMediaForPPD(name);
        if (known != nullptr &&
            cupsGetDestMediaBySize(queue.server.get(), destination, queue.details.get(),
                                   known->width, known->length, CUPS_MEDIA_FLAGS_DEFAULT,
                                   &size) != 0) {
            return size;
        }
    }
    return std::nullopt;
}

/// The paper that the queue takes for a job that asks for none.
cups_size_t Default_Paper(const Reached& queue) {
    cups_size_t size{};
    ipp_t* paper = ippGetCollection(cupsFindDestDefault(queue.server.get(), queue.destination.get(),
                                                        queue.details.get(), "media-col"),
                                    0);
    ipp_t* sides = ippGetCollection(ippFindAttribute(paper, "media-size", IPP_TAG_ZERO), 0);
    size.width = Length_In(sides, "x-dimension");
    size.length = Length_In(sides, "y-dimension");
    size.left = Length_In(paper, "media-left-margin");
    size.top = Length_In(paper, "media-top-margin");
    size.right = Length_In(paper, "media-right-margin");
    size.bottom = Length_In(paper, "media-bottom-margin");
    return size;
}

/// The finest resolution up to the usual one, else the next finer.
int Best_Resolution(ipp_attribute_t* offered, int usual) {
    const auto rank = [usual](int dots) { return dots <= usual ? usual - dots : dots; };
    int best = 0;
    for (int i = 0; i < ippGetCount(offered); ++i) {
        int down = 0;
        ipp_res_t unit = IPP_RES_PER_INCH;
        const int dots = std::min(ippGetResolution(offered, i, &down, &unit), down);
        const bool is_better = best == 0 || rank(dots) < rank(best);
        if (dots > 0 && unit == IPP_RES_PER_INCH && is_better) best = dots;
    }
    return best > 0 ? best : usual;
}

bool Send_Document(const Reached& queue, int job, const char* title, const QByteArray& pdf) {
    http_t* server = queue.server.get();
    cups_dest_t* destination = queue.destination.get();
    cups_dinfo_t* details = queue.details.get();
    if (cupsStartDestDocument(server, destination, details, job, title, Pdf, 0, nullptr, 1) !=
        HTTP_STATUS_CONTINUE) {
        return false;
    }
    const auto size = static_cast<std::size_t>(pdf.size());
    return cupsWriteRequestData(server, pdf.constData(), size) == HTTP_STATUS_CONTINUE &&
           Is_Good(cupsFinishDestDocument(server, destination, details));
}

}  // namespace

Sheet Usual_Sheet() {
    // The C library gives the number itself in the lower half of a text's address; the upper half
    // is not set.
    constexpr int Letter_Width = 216;  // millimetres
    const auto address = reinterpret_cast<std::intptr_t>(nl_langinfo(_NL_PAPER_WIDTH));
    const bool is_letter = static_cast<int>(address) == Letter_Width;
    constexpr double Margin = 5;
    return {Layout_Of(QPageSize(is_letter ? QPageSize::Letter : QPageSize::A4),
                      {Margin, Margin, Margin, Margin})};
}

std::optional<Print_Queue> Default_Queue() {
    const Reached reached = Reach(nullptr, nullptr);
    if (!reached) return std::nullopt;
    const cups_dest_t& destination = *reached.destination;
    Print_Queue queue;
    queue.name = destination.name;
    if (destination.instance != nullptr) queue.instance = destination.instance;
    const auto paper = Chosen_Paper(reached);
    queue.sheet = Sheet_Of(paper ? *paper : Default_Paper(reached));
    queue.sheet.resolution =
        Best_Resolution(cupsFindDestSupported(reached.server.get(), reached.destination.get(),
                                              reached.details.get(), "printer-resolution"),
                        queue.sheet.resolution);
    return queue;
}

bool Send_To_Queue(const Print_Queue& queue, const QString& title, const QByteArray& pdf) {
    const char* instance = queue.instance.empty() ? nullptr : queue.instance.c_str();
    const Reached reached = Reach(queue.name.c_str(), instance);
    if (!reached) return false;
    httpSetTimeout(reached.server.get(), Job_Patience, Give_Up, nullptr);
    const QByteArray name = title.toUtf8();
    cups_dest_t* destination = reached.destination.get();
    int job = 0;
    const ipp_status_t answer =
        cupsCreateDestJob(reached.server.get(), destination, reached.details.get(), &job,
                          name.constData(), destination->num_options, destination->options);
    if (!Is_Good(answer)) return false;
    if (Send_Document(reached, job, name.constData(), pdf)) return true;
    // The old connection may stand in the middle of the document.
    if (const Server other = Connect()) {
        cupsCancelJob2(other.get(), queue.name.c_str(), job, 1);
    }
    return false;
}

}  // namespace platform::desktop
