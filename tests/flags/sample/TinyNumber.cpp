// Exits with 0 if a subnormal number is kept.

#include <limits>

int main()
{
    const volatile double smallest = std::numeric_limits<double>::min();
    const volatile double tiny = smallest / 2;
    return tiny > 0 ? 0 : 1;
}
