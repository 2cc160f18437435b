#include <iostream>
#include <string>

int main(int argc, char** argv) {
    const std::string arg = argc > 1 ? argv[1] : "";
    if (arg == "--version") {
        std::cout << "asch " << XIMO_VERSION << "\n";
        return 0;
    }
    std::cout << "usage: asch [--help] [--version] COMMAND ...\n";
    return arg == "--help" ? 0 : 2;
}
