#include <algorithm>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Sha256.hpp"
#include "Catalog/Sha256Blocks.hpp"

namespace Merivane::Catalog {
namespace {

std::string RandomBytes(std::mt19937& random, std::size_t count) {
    std::string bytes(count, '\0');
    std::generate(bytes.begin(), bytes.end(), [&random] { return static_cast<char>(random()); });
    return bytes;
}

} // namespace

TEST(Sha256, GivesThePublishedDigests) {
    struct Case {
        std::string bytes;
        std::string digest;
    };
    const Case cases[] = {
        {"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"\xd3", "28969cdfa74a12c82f3bad960b0b000aca2ac329deea5c2328ebc6f2ba9802c1"},
        {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {"abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmno"
         "ijklmnopjklmnopqklmnopqrlmnopqrsmnopqrstnopqrstu",
         "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1"},
        {std::string(1000000, 'a'),
         "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Sha256Hex(c.bytes), c.digest) << c.bytes.substr(0, 60);
    }
}

TEST(Sha256, GivesTheDigestsRoundEachEdgeOfABlock) {
    struct Case {
        std::size_t length;
        std::string digest; // of that many "a", as sha256sum gives it
    };
    const Case cases[] = {
        {55, "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318"},
        {56, "b35439a4ac6f0948b6d6f9e3c6af0f5f590ce20f1bde7090ef7970686ec6738a"},
        {63, "7d3e74a05d7db15bce4ad9ec0658ea98e3f06eeecf16b4c6fff2da457ddc2f34"},
        {64, "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb"},
        {65, "635361c48bb9eab14198e76ea8ab7f1a41685d6ad62aa9146d301d4f17eb0ae0"},
        {119, "31eba51c313a5c08226adf18d4a359cfdfd8d2e816b13f4af952f7ea6584dcfb"},
        {120, "2f3d335432c70b580af0e8e1b3674a7c020d683aa5f73aaaedfdc55af904c21c"},
        {127, "c57e9278af78fa3cab38667bef4ce29d783787a2f731d4e12200270f0c32320a"},
        {128, "6836cf13bac400e9105071cd6af47084dfacad4e5e302c94bfed24e013afb73e"},
        {129, "c12cb024a2e5551cca0e08fce8f1c5e314555cc3fef6329ee994a3db752166ae"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Sha256Hex(std::string(c.length, 'a')), c.digest) << c.length;
    }
}

TEST(Sha256, AgreesWithAnotherImplementationAtEveryLengthUpTo300) {
    std::string digests;
    for (std::size_t length = 0; length <= 300; ++length) {
        std::string bytes;
        for (std::size_t i = 0; i < length; ++i) {
            bytes += static_cast<char>((i * 7 + length) % 256);
        }
        digests += Sha256Hex(bytes);
    }
    // Python's hashlib over its own digests of the same bytes.
    EXPECT_EQ(Sha256Hex(digests),
              "94bc81110d562891b0adac6bac4837f28ae9118c192446b6ac4414fdf4c6e629");
}

TEST(Sha256, DoesNotCareHowTheBytesAreDividedOverTheCalls) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        const std::string bytes = RandomBytes(random, random() % 1000);
        Sha256Run run;
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t count = std::min<std::size_t>(random() % 200, bytes.size() - at);
            Sha256Add(run, std::string_view{bytes}.substr(at, count));
            at += count;
            ASSERT_EQ(Sha256Hex(run), Sha256Hex(std::string_view{bytes}.substr(0, at)));
        }
    }
}

TEST(Sha256, TheProcessorsOwnInstructionsDoWhatThePortableFormDoes) {
    const BlockFunction own = ProcessorTakeBlocks();
    if (own == nullptr) {
        GTEST_SKIP() << "this processor has none";
    }
    std::mt19937 random(2);
    for (int round = 0; round < 500; ++round) {
        const std::size_t count = random() % 8;
        const std::string bytes = RandomBytes(random, count * Sha256BlockSize + 1);
        // From an odd address, where whole registers can't be loaded as they lie.
        const auto* const blocks = reinterpret_cast<const unsigned char*>(bytes.data()) + 1;
        Sha256State portable;
        std::generate(portable.begin(), portable.end(),
                      [&random] { return static_cast<std::uint32_t>(random()); });
        Sha256State processor = portable;
        PortableTakeBlocks(portable, blocks, count);
        own(processor, blocks, count);
        ASSERT_EQ(processor, portable) << count;
    }
}

TEST(Sha256, ThePortableFormGivesThePublishedDigest) {
    Sha256State state = Sha256Run().state;
    std::array<unsigned char, Sha256BlockSize> block = {'a', 'b', 'c', 0x80};
    block.back() = 24; // bits
    PortableTakeBlocks(state, block.data(), 1);
    EXPECT_EQ(state, (Sha256State{0xba7816bf, 0x8f01cfea, 0x414140de, 0x5dae2223, 0xb00361a3,
                                  0x96177a9c, 0xb410ff61, 0xf20015ad}));
}

} // namespace Merivane::Catalog
