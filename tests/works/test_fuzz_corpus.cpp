// Replays the saved fuzz inputs through the readers, so that a crash once found stays fixed.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "../../fuzz/FuzzBodies.h"

namespace vardena {
namespace {

void Replay(const std::string& sub, void (*body)(const uint8_t*, size_t))
{
    const std::filesystem::path dir = std::filesystem::path(VARDENA_TEST_DATA) / ".." / ".." / "fuzz" / "corpus" / sub;
    int count = 0;
    for (const auto& e : std::filesystem::directory_iterator(dir)) {
        std::ifstream in(e.path(), std::ios::binary);
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        SCOPED_TRACE(e.path().string());
        body(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST(FuzzCorpus, PositionalRecords) { Replay("positional", fuzz::PositionalRecord); }
TEST(FuzzCorpus, NamedRecords) { Replay("named", fuzz::NamedRecord); }
TEST(FuzzCorpus, GeneralData) { Replay("datos", fuzz::GeneralData); }
TEST(FuzzCorpus, RtfReader) { Replay("rtf", fuzz::RtfReader); }

}  // namespace
}  // namespace vardena
