#include "platform/printer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <cmath>
#include <memory>
#include <optional>
#include <string>

#include "platform/desktop/drawing/device.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/printing/print_queue.h"
#include "platform/desktop/scale.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program.h"

namespace platform {

namespace {

constexpr double Font_Points = 10;

/// A screen's, for which the lengths of dashes are made.
constexpr double Screen_Resolution = 96;

/// A job's title has up to 255 bytes, and so has a file's name; a character takes up to three.
constexpr std::size_t Longest_Title = 64;

/// A page while it is drawn. It is kept in memory, so that a print leaves no files behind.
struct Document {
    std::string title;
    QBuffer pdf;
    QPdfWriter writer{&pdf};
};

struct Printer {
    std::optional<desktop::Print_Queue> queue;  ///< nothing: documents go to files
    desktop::Sheet sheet;
    std::optional<Document> document;
    double cursor_x = 0;
    double cursor_y = 0;
    Device_Context device;
};

/// Null until a printer is opened, and again when the toolkit, whose fonts it holds, has gone.
std::unique_ptr<Printer> printer;

void Drop_Document() {
    desktop::Close_Painter(printer->device);
    printer->device.target = nullptr;
    printer->document.reset();
}

/// Undoes the fitting of letters to the dots of a screen, which would space them unevenly.
QFont Page_Font(int resolution) {
    QFont font = desktop::Default_Font();
    font.setPixelSize(
        static_cast<int>(std::lround(Font_Points * resolution / desktop::Points_Per_Inch)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// The document's name, made fit for a file's on this system or on a disk shared with another.
std::string Title(std::string_view document) {
    constexpr std::string_view Unfit = "/\\:*?\"<>|";
    std::string title(document.substr(0, Longest_Title));
    for (char& character : title) {
        const QChar unicode = desktop::To_Qt(std::string_view(&character, 1)).at(0);
        if (unicode.category() == QChar::Other_Control || Unfit.find(character) != Unfit.npos) {
            character = '_';
        }
    }
    // A file whose name begins with a dot is hidden.
    if (title.empty() || title.front() == '.') title.insert(0, "_");
    return title;
}

/// For systems without a printer: "TITLE.pdf" in the working folder, or "TITLE (2).pdf" and so on
/// where a file stands already.
bool Save_To_File(const std::string& title, const QByteArray& pdf) {
    std::string name = title + ".pdf";
    for (int number = 2; File_Exists(name); ++number)
        name = title + " (" + std::to_string(number) + ").pdf";
    const auto* first = reinterpret_cast<const std::uint8_t*>(pdf.constData());
    if (!Write_File(name, {first, static_cast<std::size_t>(pdf.size())}).empty()) return false;
    Message_Box("The page was printed to the file \"" +
                    desktop::From_Qt_Lossy(QDir::currentPath()) + "/" + name +
                    "\", because no default printer was found.",
                Icon::Information, Message_Title);
    return true;
}

}  // namespace

bool Open_Printer() {
    if (!printer) {
        printer = std::make_unique<Printer>();
        qAddPostRoutine([] { printer.reset(); });
    }
    Drop_Document();
    printer->queue = desktop::Default_Queue();
    printer->sheet = printer->queue ? printer->queue->sheet : desktop::Usual_Sheet();
    const desktop::Sheet& sheet = printer->sheet;
    Device_Context& device = printer->device;
    device.area = QRectF(QPointF(), sheet.layout.paintRectPixels(sheet.resolution).size());
    device.dash_scale = sheet.resolution / Screen_Resolution;
    device.font = Page_Font(sheet.resolution);
    return true;
}

Device_Context* Printer_Device() {
    return printer ? &printer->device : nullptr;
}

Size Paper_Size() {
    if (!printer) return {};
    const QSizeF points = printer->sheet.layout.fullRect(QPageLayout::Point).size();
    return {points.width() * desktop::Twips_Per_Inch / desktop::Points_Per_Inch,
            points.height() * desktop::Twips_Per_Inch / desktop::Points_Per_Inch};
}

double Printer_Twips_To_Pixels_X(double twips) {
    return printer ? twips * printer->sheet.resolution / desktop::Twips_Per_Inch : 0;
}

double Printer_Twips_To_Pixels_Y(double twips) {
    return Printer_Twips_To_Pixels_X(twips);
}

Size Printable_Size() {
    if (!printer) return {};
    return {printer->device.area.width(), printer->device.area.height()};
}

bool Start_Page(std::string_view document) {
    if (!printer) return false;
    Drop_Document();
    Document& page = printer->document.emplace();
    page.title = Title(document);
    page.pdf.open(QIODevice::WriteOnly);
    page.writer.setTitle(desktop::To_Qt(page.title));
    page.writer.setCreator(QStringLiteral("Skerrand v2.0"));
    page.writer.setResolution(printer->sheet.resolution);
    page.writer.setPageLayout(printer->sheet.layout);
    printer->device.target = &page.writer;
    Set_Text_Cursor(0, 0);
    if (!desktop::Open_Painter(&printer->device)) {
        Drop_Document();
        return false;
    }
    printer->device.painter.setClipRect(printer->device.area);
    return true;
}

void Set_Text_Cursor(double x, double y) {
    if (!printer) return;
    printer->cursor_x = x;
    printer->cursor_y = y;
}

Size Text_Size(std::string_view text) {
    if (!printer) return {};
    const QFontMetricsF metrics(printer->device.font);
    return {metrics.horizontalAdvance(desktop::To_Qt(text)), metrics.height()};
}

void Print_Line(std::string_view text) {
    if (!printer) return;
    TextOutA(&printer->device, static_cast<int>(std::lround(printer->cursor_x)),
             static_cast<int>(std::lround(printer->cursor_y)), text);
    Set_Text_Cursor(0, printer->cursor_y + Text_Size(text).height);
}

bool End_Document() {
    if (!printer || !printer->document) return false;
    desktop::Close_Painter(printer->device);
    const std::string title = printer->document->title;
    const QByteArray pdf = printer->document->pdf.data();
    Drop_Document();
    return printer->queue ? desktop::Send_To_Queue(*printer->queue, desktop::To_Qt(title), pdf)
                          : Save_To_File(title, pdf);
}

}  // namespace platform
