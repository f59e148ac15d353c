#include <cstdio>
#include <limits>

// Undefined behaviour has to end the program, not only to print a line that nobody reads.
int main()
{
    volatile int number = std::numeric_limits<int>::max();
    number = number + 1;
    std::puts("survived");
    return 0;
}
