#include "cases/QueryCases.h"

#include <iostream>
#include <string>

// Reads a call a line, {"fn": NAME, "args": [...]}, and writes a line for each: {"result": ...} or {"error":
// "..."}.
int main()
{
    std::ios::sync_with_stdio(false);
    std::string line;
    while (std::getline(std::cin, line)) {
        const QByteArray answer = KovaTest::AnswerLine(QByteArray::fromStdString(line));
        std::cout.write(answer.constData(), answer.size()).put('\n');
    }
    return 0;
}
