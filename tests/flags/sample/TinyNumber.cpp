// Ends with 0 where a number below the smallest normal one is kept.

#include <limits>

int main()
{
    const volatile double smallest = std::numeric_limits<double>::min();
    const volatile double tiny = smallest / 2;
    return tiny > 0 ? 0 : 1;
}
