// LIKE on folded text. A run of literals is one part, so that a letter and its accent are compared as one.
#include "platform/jet/like_pattern.h"

#include "platform/base/runtime_error.h"
#include "platform/jet/collation.h"
#include <algorithm>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace zv::jet {
namespace {

constexpr std::size_t kNoMatch = std::string_view::npos;

/// Whether a letter ends before that byte: what follows is no mark that belongs to it.
bool isLetterEnd(std::string_view text, std::size_t at) {
    if (at >= text.size() || static_cast<unsigned char>(text[at]) < 0x80) return true;
    const std::string_view next = text.substr(at, 4);
    const auto character =
        icu::UnicodeString::fromUTF8(icu::StringPiece(next.data(), static_cast<int32_t>(next.size()))).char32At(0);
    return u_getCombiningClass(character) == 0;
}

/// Bytes of the letter that a text begins with, its marks included.
std::size_t letterLength(std::string_view text) {
    std::size_t length = 0;
    do {
        if (length < text.size()) ++length;
        while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) ++length;
    } while (!isLetterEnd(text, length));
    return length;
}

/// Whether the literal occurs in the text as whole letters.
bool contains(std::string_view text, std::string_view literal) {
    std::size_t at = text.find(literal);
    while (at != kNoMatch && !isLetterEnd(text, at + literal.size())) at = text.find(literal, at + 1);
    return at != kNoMatch;
}

std::string folded(std::string_view text) {
    std::string buffer;
    return std::string(foldText(text, buffer));
}

} // namespace

LikePattern::LikePattern(std::string_view pattern) {
    std::size_t literal = 0; // start of the literal run before i
    for (std::size_t i = 0; i < pattern.size();) {
        const char c = pattern[i];
        if (c != '*' && c != '?' && c != '#' && c != '[') {
            ++i;
            continue;
        }
        // "[x]" with one character is how a wild card is written literally: it belongs to the run.
        addLiteral(pattern.substr(literal, i - literal));
        if (c == '[') {
            i = addList(pattern, i);
        } else {
            const Kind kind = c == '*' ? Kind::AnyRun : c == '?' ? Kind::AnyCharacter : Kind::Digit;
            const bool repeated = kind == Kind::AnyRun && !parts_.empty() && parts_.back().kind == Kind::AnyRun;
            if (!repeated) parts_.push_back({kind, {}, {}});
            ++i;
        }
        literal = i;
    }
    addLiteral(pattern.substr(literal));
    for (Part& part : parts_) part.literal = folded(part.literal);
    onlyContains_ = parts_.size() == 3 && parts_[0].kind == Kind::AnyRun && parts_[1].kind == Kind::Literal &&
                    parts_[2].kind == Kind::AnyRun;
    ascii_ = isAscii(pattern);
}

void LikePattern::addLiteral(std::string_view text) {
    if (text.empty()) return;
    if (parts_.empty() || parts_.back().kind != Kind::Literal) parts_.push_back({Kind::Literal, {}, {}});
    parts_.back().literal += text;
}

/// Reads the list that opens there and returns the position behind it.
std::size_t LikePattern::addList(std::string_view pattern, std::size_t open) {
    const std::size_t close = pattern.find(']', open + 1);
    if (close == std::string_view::npos) throw RuntimeError(93);
    std::string_view list = pattern.substr(open + 1, close - open - 1);
    if (letterLength(list) == list.size()) {
        addLiteral(list); // also "[]", which stands for nothing
        return close + 1;
    }
    Part part{Kind::List, {}, {}};
    if (list.front() == '!') {
        part.negated = true;
        list.remove_prefix(1);
    }
    readRanges(list, part.ranges);
    parts_.push_back(std::move(part));
    return close + 1;
}

void LikePattern::readRanges(std::string_view list, std::vector<Range>& ranges) {
    while (!list.empty()) {
        const std::string first = folded(list.substr(0, letterLength(list)));
        list.remove_prefix(letterLength(list));
        if (list.size() < 2 || list.front() != '-') { // a "-" at the end is a plain character
            ranges.push_back({first, first});
            continue;
        }
        list.remove_prefix(1);
        const std::string last = folded(list.substr(0, letterLength(list)));
        list.remove_prefix(letterLength(list));
        if (compareTexts(first, last) > 0) throw RuntimeError(93);
        ranges.push_back({first, last});
    }
}

bool LikePattern::matches(std::string_view text) const {
    static thread_local std::string buffer;
    std::string_view folded;
    if (ascii_ && (isAscii(text) || foldsApartFromAscii(text))) {
        lowerAscii(text, buffer); // what is beyond ASCII meets wild cards only
        folded = buffer;
    } else {
        folded = foldText(text, buffer);
    }
    return onlyContains_ ? contains(folded, parts_[1].literal) : matchesFolded(folded);
}

/// Bytes that a part takes at the head of the rest, kNoMatch if it does not fit there.
std::size_t LikePattern::lengthAt(const Part& part, std::string_view rest) {
    if (part.kind == Kind::Literal) {
        const bool fits = rest.starts_with(part.literal) && isLetterEnd(rest, part.literal.size());
        return fits ? part.literal.size() : kNoMatch;
    }
    const std::size_t length = letterLength(rest);
    if (length == 0) return kNoMatch;
    if (part.kind == Kind::AnyCharacter) return length;
    if (part.kind == Kind::Digit) return rest.front() >= '0' && rest.front() <= '9' ? length : kNoMatch;
    const std::string_view character = rest.substr(0, length);
    const bool listed = std::ranges::any_of(part.ranges, [character](const Range& range) {
        if (range.first == range.last) return character == range.first;
        return compareTexts(range.first, character) <= 0 && compareTexts(character, range.last) <= 0;
    });
    return listed != part.negated ? length : kNoMatch;
}

/// Where a part that follows a run may fit, from there on; kNoMatch if nowhere.
std::size_t LikePattern::seek(std::size_t part, std::string_view text, std::size_t from) const {
    const bool literal = part < parts_.size() && parts_[part].kind == Kind::Literal;
    return literal ? text.find(parts_[part].literal, from) : from;
}

/// Greedy match with one way back: to the latest run, which then takes more.
bool LikePattern::matchesFolded(std::string_view text) const {
    std::size_t part = 0;
    std::size_t at = 0;
    std::size_t runPart = kNoMatch; // the part behind the latest run
    std::size_t runAt = 0;          // where that part was tried last
    for (;;) {
        if (part < parts_.size() && parts_[part].kind == Kind::AnyRun) {
            runPart = ++part;
            if (runPart == parts_.size()) return true;
            runAt = at = seek(runPart, text, at);
            if (runAt == kNoMatch) return false;
        }
        const std::size_t length = part < parts_.size() ? lengthAt(parts_[part], text.substr(at)) : kNoMatch;
        if (length != kNoMatch) {
            at += length;
            ++part;
        } else if (part == parts_.size() && at == text.size()) {
            return true;
        } else if (runPart != kNoMatch && runAt < text.size()) {
            runAt = at = seek(runPart, text, runAt + letterLength(text.substr(runAt)));
            if (runAt == kNoMatch) return false;
            part = runPart;
        } else {
            return false;
        }
    }
}

} // namespace zv::jet
