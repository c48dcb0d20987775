// The dialect's LIKE: * any run, ? one character, # one digit, [abc] [a-z] [!abc] one of a list; all else literal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zv::jet {

class LikePattern {
  public:
    /// Reads a pattern in UTF-8. Error 93 for a list without its "]" or a range that does not rise.
    explicit LikePattern(std::string_view pattern);

    /// Whether the whole text (UTF-8) fits. Case does not count, accents do.
    bool matches(std::string_view text) const;

  private:
    enum class Kind { Literal, AnyRun, AnyCharacter, Digit, List };
    struct Range {
        std::string first, last;
    };
    struct Part {
        Kind kind;
        std::string literal;       ///< folded
        std::vector<Range> ranges; ///< of folded characters
        bool negated = false;
    };

    void addLiteral(std::string_view text);
    std::size_t addList(std::string_view pattern, std::size_t open);
    static void readRanges(std::string_view list, std::vector<Range>& ranges);
    bool matchesFolded(std::string_view text) const;
    std::size_t seek(std::size_t part, std::string_view text, std::size_t from) const;
    static std::size_t lengthAt(const Part& part, std::string_view rest);

    std::vector<Part> parts_;
    bool onlyContains_ = false; ///< the pattern is *literal*
    bool ascii_ = false;
};

} // namespace zv::jet
