// Warned of on purpose.

int main(int count, char**)
{
    const short shortened = count;
    return shortened > 0 ? 0 : 1;
}
