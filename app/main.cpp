#include "app/form1.h"
#include "platform/program.h"

int main(int argc, char** argv) {
    return platform::Run(argc, argv, [] { platform::Show(skerrand::form1::window); });
}
