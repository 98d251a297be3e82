#include <utilsDll/ProcessInformation.h>

// A module of the product in small. What the library does for it is seen in the programs of the guide.
int main()
{
    return UtilsDll::currentProcessName().isEmpty() ? 1 : 0;
}
