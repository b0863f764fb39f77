// kestrova-calc: the headless companion of Kestrova. It reads JSON Lines on
// standard input and answers each request with one line on standard output.

#include "calc/calc_protocol.h"

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
    while (std::getline(std::cin, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (isBlank(line))
            continue;
        std::cout << kestrova::calc::answerRequest(line) << '\n';
        // Answer at once when nothing more is waiting, so that a caller that
        // sends one line and waits for its answer is served.
        if (std::cin.rdbuf()->in_avail() <= 0)
            std::cout.flush();
    }
    std::cout.flush();
    return std::cin.bad() ? 2 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1) {
        std::cerr << "kestrova-calc: unknown argument '" << argv[1] << "'\n"
                  << "usage: kestrova-calc < requests.jsonl\n";
        return 2;
    }
    return answerStandardInput();
}
