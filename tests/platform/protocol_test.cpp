#include "platform/headless/protocol.h"

#include <gtest/gtest.h>
#include <sstream>

#include "platform/controls.h"
#include "platform/drawing.h"
#include "platform/headless/program.h"
#include "platform/link.h"
#include "platform/message_box.h"
#include "tests/platform/scratch_folder.h"

using namespace platform;
using headless::Execute;
using enum Control_Kind;

static void Click() {
    Message_Box("a\tb\r\nc\\d", Icon::Information, "\xE9");
}

constexpr Control controls[] = {
    {.name = "Frame1", .kind = Frame, .at = {1500, 0, 1500, 1500}, .caption = "ok"},
    {.name = "Check1", .kind = Check, .in = "Frame1", .at = {0, 300, 900, 300}},
    {.name = "Label1", .kind = Label, .caption = "error here", .font = {"", 18, true}},
    {.name = "Combo1", .kind = Combo, .at = {0, 600, 900, 315}, .caption = "C:\\\r\nx\ty"},
    {.name = "Button1", .kind = Button, .at = {0, 900, 900, 315}, .handler = Click},
    {.name = "Drive1", .kind = Drive, .at = {0, 1200, 900, 315}, .handler = Click},
    {.name = "Timer1", .kind = Timer, .interval = 1000},
};

constexpr Window Small = {"Form7", "", 1500, 1500, {}, Frame_Style::Dialog};
constexpr Window Sample = {"Form9", "\x80 ok", 3008, 3007, controls, Frame_Style::Sizable};

/// Commands, each with "=" and its answer behind it, which lacks the end.
static void Expect(std::initializer_list<std::string_view> exchanges) {
    for (const std::string_view exchange : exchanges) {
        const std::size_t sign = exchange.find(" =");
        std::string answer(exchange.substr(std::min(sign + 3, exchange.size())));
        if (!answer.starts_with("error ")) answer += answer.empty() ? "ok" : "\nok";
        EXPECT_EQ(Execute(exchange.substr(0, sign)), answer + "\n") << exchange;
    }
}

class Protocol : public testing::Test {
  protected:
    void SetUp() override {
        headless::Begin([] { Show(Sample); });
        const std::string entries[] = {"ok", "error one", "\xD6 two", "error", "\\ok"};
        Add_Entries(Find_Control(Sample, "Combo1"), entries);
    }
};

TEST_F(Protocol, A_Text_Is_Mistaken_For_The_End_Of_The_Answer) {
    Expect({"get Form9.caption = \u20AC ok", "get Form9.Frame1.caption = \\ok",
            "get Form9.Label1.caption = \\error here", "get Form9.Combo1.text = C:\\\\\\r\\nx\\ty",
            "items Form9.Combo1 = \\ok\n\\error one\n\u00D6 two\nerror\n\\\\ok",
            "click Form9.Button1 =", "messages = information\t\u00E9\ta\\tb\\r\\nc\\\\d",
            "messages ="});
}

TEST_F(Protocol, A_Bad_Command_Is_No_Error_Or_Changes_Something) {
    std::istringstream commands(
        "|nonsense|clock |advance|advance +1|advance 1 |advance 99999999999999999999|"
        "get Form9|get Form9.nothing|get Form8.caption|get Form9.Button1.text|"
        "get Form9.Timer1.visible|controls form9|click Form9.Label1|click Form9|"
        "double_click Form9.Combo1|pick Form9.Combo1 5|pick Form9.Combo1 -2|"
        "pick Form9.Combo1|pick Form9.Drive1 -1|type Form9.Combo1|type Form9.Combo1 \u0416|"
        "drive Form9.Drive1 0|folder Form9.Drive1 /|mouse Form9 left 201 0|"
        "mouse Form9 left -1 0|mouse Form9 both 1 1|resize Form9 7 100|svg Form8 x.svg|"
        "svg Form9 /no/such/folder/x.svg|printer 1 2 3|printer 1 2 3 0|printer 1 2 3 4 5|"
        "printer gone|page 1|svg page 1 x|key 256 up|key 5 sideways|simulator on twice|"
        "simulator set 0x10000 00|simulator set 0xFFFF 0000|simulator set 0 0|"
        "simulator set 0 0g|simulator set -1 00|simulator set 0  00|simulator get 0 65537|"
        "simulator get 0|simulator reply x|simulator reply 1 after -1|simulator reply 1 then 2|"
        "simulator reply 4294967296|simulator fly");
    for (std::string command; std::getline(commands, command, '|');)
        EXPECT_TRUE(Execute(command).starts_with("error ")) << command;
    Expect({"clock = 0", "get Form9.Combo1.index = -1", "get Form9.width = 209",
            "simulator get 0 1 = 00", "simulator set 65535 Fe =", "simulator get 0xffff 1 = fe",
            "messages =", "printer ready =", "get Form9.client_width = 201",
            "get Form9.client_height = 200", "get Form9.height = 227", "get Form9.left = 64",
            "get Form9.Label1.font_size = 18", "get Form9.Label1.bold = yes",
            "get Form9.Button1.font_size = 8.25", "get Form9.Timer1.enabled = yes",
            "type Form9.Combo1  a  \u00E9  =", "get Form9.Combo1.text =  a  \u00E9 "});
}

TEST_F(Protocol, What_Is_Disabled_Takes_Input_Or_A_Minimised_Window_Does_Not) {
    Set_Enabled(Find_Control(Sample, "Frame1"), false);
    Set_Enabled(Find_Control(Sample, "Combo1"), false);
    Show(Small);
    Expect({"controls Form7 =", "click Form9.Check1 = error disabled",
            "pick Form9.Combo1 1 = error disabled", "type Form9.Combo1 x = error disabled",
            "minimise Form7 = error this window cannot be minimised",
            "resize Form7 99 99 = error this window cannot be resized", "minimise Form9 =",
            "resize Form9 300 300 = error this window cannot be resized", "click Form9.Button1 ="});
    Set_Enabled(Sample, false);
    Expect({"click Form9.Button1 = error disabled", "restore Form9 = error disabled",
            "close Form9 = error disabled"});
}

TEST_F(Protocol, After_The_End_More_Than_The_Looks_Back_Answers) {
    Expect({"close Form9 =", "running = no", "messages =", "pages = 0",
            "clock = error the program has ended", "quit ="});
    EXPECT_TRUE(headless::Was_Quit());
}

TEST_F(Protocol, A_Call_Is_Changed_Or_Drawn_As_Another_Shape) {
    const Scratch_Folder scratch;
    Device_Context* device = Window_Device(Sample);
    Set_Pen_Style(device, Pen_Style::Dashed);
    LineTo(device, 7, -3);
    Set_Fill_Style(device, Fill_Style::Solid);
    Rectangle(device, 30, 20, 10, 10);
    Ellipse(device, 60, 40, 20, 10);
    Arc(device, 0, 0, 100, 50, 200, 25, 50, 0);   // a quarter, from the right to the top
    Arc(device, 0, 0, 100, 50, 50, 0, 200, 25);   // the other three
    Arc(device, 0, 0, 100, 50, 80, 35, 110, 45);  // one radial through both points
    Set_Pen_Width(device, 2);
    Arc(device, 5, 5, 5, 50, 0, 0, 9, 9);
    TextOutA(device, 4, 5, "<\xE9&\x01>");
    EXPECT_EQ(Execute("svg Form9 a b.svg"), "ok\n");
    std::ifstream file("a b.svg");
    const std::string svg{std::istreambuf_iterator<char>(file), {}};
    for (const char* element :
         {"\nrectangle 30 20 10 10 | dashed 1 0,0,0 | solid 0,0,0\n",
          "\narc 5 5 5 50 0 0 9 9 | dashed 2 0,0,0\ntext 4 5 <\u00E9&\x01> | 0,0,0\nok\n",
          "<line x1=\"0\" y1=\"0\" x2=\"7\" y2=\"-3\" stroke=\"rgb(0,0,0)\" stroke-dasharray=",
          "<rect x=\"10\" y=\"10\" width=\"20\" height=\"10\"", " fill=\"rgb(0,0,0)\"/>\n",
          "<ellipse cx=\"40\" cy=\"25\" rx=\"20\" ry=\"15\"", " fill=\"rgb(0,0,0)\"/>\n<path",
          "d=\"M 100 25 A 50 25 0 0 0 50 0\"", "d=\"M 50 0 A 50 25 0 1 0 100 25\"",
          "<ellipse cx=\"50\" cy=\"25\" rx=\"50\" ry=\"25\"",
          "<ellipse cx=\"5\" cy=\"27.5\" rx=\"0\" ry=\"22.5\" stroke=\"rgb(0,0,0)\" "
          "stroke-width=\"2\"",
          ">&lt;\u00E9&amp; &gt;</text>"}) {
        EXPECT_NE((Execute("picture Form9") + svg).find(element), std::string::npos) << element;
    }
    EXPECT_EQ(std::count(svg.begin(), svg.end(), '\n'), 13);
}

TEST(Folder_List, Path_Is_Not_Whole_Or_Ends_With_A_Separator) {
    const Scratch_Folder scratch;
    const std::filesystem::path here = std::filesystem::current_path();
    const std::pair<std::string, std::string> cases[] = {
        {"sub\\in/", here.string() + "/sub\\in"},
        {"..", here.parent_path().string()},
        {"/home/./me/x/../fs2002\\scenery//", "/home/me/fs2002\\scenery"},
        {"/../..", "/"},
        {"\\games", "\\games"},
        {"d:", "d:\\"},
        {"D:\\games\\..\\fs2002\\", "D:\\fs2002"},
    };
    for (const auto& [given, whole] : cases)
        EXPECT_EQ(headless::Whole_Path(given), whole) << given;
}

static std::string ticks;

static void Note(char name) {
    ticks += name + std::to_string(headless::Clock()) + " ";
    if (headless::Clock() == 90) Sleep(75);
}

constexpr Control first_controls[] = {
    {.name = "A", .kind = Timer, .handler = [] { Note('a'); }, .interval = 30},
    {.name = "B", .kind = Timer, .handler = [] { Note('b'); }, .interval = 20}};
constexpr Control second_controls[] = {
    {.name = "C", .kind = Timer, .handler = [] { Note('c'); }, .interval = 20}};
constexpr Window First = {"First", "", 1500, 1500, first_controls};
constexpr Window Second = {"Second", "", 1500, 1500, second_controls};

TEST(Timers, Ticks_Come_Out_Of_Order_Or_Twice_After_A_Wait_Of_The_Program) {
    headless::Begin([] {
        Show(Second);
        Show(First);
    });
    for (const int milliseconds : {60, 60, 20}) {
        headless::Advance(milliseconds);
        ticks += "at " + std::to_string(headless::Clock()) + "\n";
    }
    EXPECT_EQ(ticks,
              "c20 b20 a30 c40 b40 c60 a60 b60 at 60\n"
              "c80 b80 a90 at 165\n"
              "c165 b165 a165 c185 b185 at 185\n");
}
