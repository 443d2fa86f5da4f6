// A program without the compiler's protections.
#include <cstdio>

int main(int count, char **words)
{
    char name[16];
    std::snprintf(name, sizeof name, "%s", words[count - 1]);
    return std::puts(name) < 0;
}
