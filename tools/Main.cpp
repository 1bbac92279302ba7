#include "tools/Orbilex.h"

int main(int ArgumentCount, char** Arguments)
{
    return RunOrbilex(ArgumentCount, Arguments);
}
