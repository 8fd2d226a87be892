// Intentionally causes a compiler warning.

int main(int count, char**)
{
    const short shortened = count;
    return shortened > 0 ? 0 : 1;
}
