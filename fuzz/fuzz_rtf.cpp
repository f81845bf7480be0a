// libFuzzer entry point: see FuzzBodies.h.
#include "FuzzBodies.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    vardena::fuzz::RtfReader(data, size);
    return 0;
}
