// Comparing and folding with ICU, with short ways for the ASCII that most texts consist of.
#include "platform/jet/collation.h"

#include "platform/base/runtime_error.h"

#include <array>
#include <cstdint>
#include <memory>
#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/ucol.h>
#include <unicode/ustring.h>
#include <vector>

namespace zv::jet {
namespace {

void check(UErrorCode status) {
    if (U_FAILURE(status)) throw RuntimeError(status == U_MEMORY_ALLOCATION_ERROR ? 7 : 5);
}

UCollator* makeCollator() {
    UErrorCode status = U_ZERO_ERROR;
    UCollator* collator = ucol_open("", &status);
    check(status);
    ucol_setStrength(collator, UCOL_SECONDARY);
    ucol_setAttribute(collator, UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    check(status);
    return collator;
}

UCollator* collator() {
    static const std::unique_ptr<UCollator, decltype(&ucol_close)> shared(makeCollator(), ucol_close);
    return shared.get();
}

const icu::Normalizer2& folding() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* instance = icu::Normalizer2::getNFKCCasefoldInstance(status);
    check(status);
    return *instance;
}

int32_t length(std::string_view text) { return static_cast<int32_t>(text.size()); }

// Letters and punctuation of the western languages, the characters nearly all catalogues consist of.
constexpr char32_t kLatinEnd = 0x250;
constexpr char32_t kPunctuationFirst = 0x2010;
constexpr char32_t kPunctuationEnd = 0x2060;

/// Whether the folded character consists of characters beyond ASCII that do not join a letter before them.
bool staysApart(char32_t character) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString folded = folding().normalize(icu::UnicodeString(static_cast<UChar32>(character)), status);
    check(status);
    if (folded.isEmpty()) return false;
    for (int32_t i = 0; i < folded.length(); ++i)
        if (folded[i] < 0x80 || !folding().hasBoundaryBefore(folded.char32At(i))) return false;
    return true;
}

/// The collation keeps the sharp s and a double s apart, full case folding does not: a character of private use, which
/// folds into itself, stands for the sharp s of both cases.
std::string withoutSharpS(std::string_view text) {
    std::string plain(text);
    for (const std::string_view sharp : {"\xC3\x9F", "\xE1\xBA\x9E"})
        for (std::size_t at = plain.find(sharp); at != std::string::npos; at = plain.find(sharp, at))
            plain.replace(at, sharp.size(), "\xEE\x80\xA0");
    return plain;
}

struct ApartTable {
    std::array<bool, kLatinEnd> latin{};
    std::array<bool, kPunctuationEnd - kPunctuationFirst> punctuation{};
    ApartTable() {
        for (char32_t c = 0x80; c < kLatinEnd; ++c) latin[c] = staysApart(c);
        for (char32_t c = kPunctuationFirst; c < kPunctuationEnd; ++c)
            punctuation[c - kPunctuationFirst] = staysApart(c);
    }
};

} // namespace

int compareTexts(std::string_view first, std::string_view second) {
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result =
        ucol_strcollUTF8(collator(), first.data(), length(first), second.data(), length(second), &status);
    check(status);
    return result;
}

void appendSortKey(std::string_view text, std::string& keys) {
    static thread_local std::vector<UChar> wide;
    wide.resize(text.size() + 1);
    int32_t units = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(wide.data(), static_cast<int32_t>(wide.size()), &units, text.data(), length(text), 0xFFFD,
                         nullptr, &status);
    check(status);
    const std::size_t start = keys.size();
    const auto guess = static_cast<int32_t>(2 * text.size() + 16);
    keys.resize(start + static_cast<std::size_t>(guess));
    const auto write = [&](int32_t room) {
        return ucol_getSortKey(collator(), wide.data(), units, reinterpret_cast<uint8_t*>(keys.data() + start), room);
    };
    int32_t needed = write(guess);
    if (needed > guess) {
        keys.resize(start + static_cast<std::size_t>(needed));
        needed = write(needed);
    }
    keys.resize(start + static_cast<std::size_t>(needed));
}

bool isAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

void lowerAscii(std::string_view text, std::string& buffer) {
    buffer.resize(text.size());
    const char* from = text.data();
    char* to = buffer.data();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(from[i]);
        to[i] = static_cast<char>(c + (static_cast<unsigned char>(c - 'A') < 26 ? 32 : 0));
    }
}

std::string_view foldText(std::string_view text, std::string& buffer) {
    if (isAscii(text)) {
        lowerAscii(text, buffer);
        return buffer;
    }
    const std::string plain = withoutSharpS(text);
    buffer.clear();
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&buffer, length(plain));
    folding().normalizeUTF8(0, icu::StringPiece(plain.data(), length(plain)), sink, nullptr, status);
    check(status);
    return buffer;
}

bool foldsApartFromAscii(std::string_view text) {
    static const ApartTable table;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) continue;
        const auto next = [&text, i](std::size_t n) {
            return i + n < text.size() ? static_cast<unsigned char>(text[i + n]) & 0x3Fu : 0u;
        };
        if (lead >= 0xC2 && lead < 0xE0) {
            const char32_t c = (lead & 0x1Fu) << 6 | next(1);
            if (c >= kLatinEnd || !table.latin[c]) return false;
            i += 1;
        } else if (lead == 0xE2) {
            const char32_t c = 0x2000u | next(1) << 6 | next(2);
            if (c < kPunctuationFirst || c >= kPunctuationEnd || !table.punctuation[c - kPunctuationFirst])
                return false;
            i += 2;
        } else {
            return false;
        }
    }
    return true;
}

} // namespace zv::jet
