// kestrova-calc: the headless companion of Kestrova. It reads JSON Lines on
// standard input and answers each request with one line on standard output.

#include "calc/calc_protocol.h"
#include "calc/json_result.h"
#include "calc/open_file.h"

#include <iostream>
#include <string>

namespace {

bool isBlank(const std::string& line)
{
    return line.find_first_not_of(" \t\r") == std::string::npos;
}

int answerStandardInput()
{
    std::ios::sync_with_stdio(false);
    std::string line;
    bool tooLong = false;
    while (kestrova::calc::readRequestLine(std::cin, line, tooLong)) {
        if (!tooLong && isBlank(line))
            continue;
        std::cout << (tooLong ? kestrova::calc::tooLongAnswer() : kestrova::calc::answerRequest(line)) << '\n';
        // Answer at once when nothing more is waiting, so that a caller that
        // sends one line and waits for its answer is served.
        if (std::cin.rdbuf()->in_avail() <= 0)
            std::cout.flush();
    }
    std::cout.flush();
    return std::cin.bad() ? 2 : 0;
}

// --open FILE...: one answer per file, in order. With several files each
// answer names its file first, so that a folder of saved cases can be
// rechecked in one run; every file is answered before the exit status says
// whether any failed.
int answerFiles(int count, char** files)
{
    bool allOpened = true;
    for (int i = 0; i < count; ++i) {
        bool ok = false;
        const std::string answer = kestrova::calc::openProjectFile(files[i], ok);
        if (count == 1)
            std::cout << answer << '\n';
        else
            std::cout << "{\"file\": " << kestrova::calc::quoted(files[i]) << ", " << answer.substr(1) << '\n';
        allOpened = allOpened && ok;
    }
    return allOpened ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string option = argc > 1 ? argv[1] : "";
    if (argc >= 3 && option == "--open")
        return answerFiles(argc - 2, argv + 2);
    if (argc > 1) {
        std::cerr << "kestrova-calc: unknown arguments\n"
                  << "usage: kestrova-calc < requests.jsonl\n"
                  << "       kestrova-calc --open FILE.ksv [FILE.ksv ...]\n";
        return 2;
    }
    return answerStandardInput();
}
