#include "ScenarioWords.h"

#include <cstddef>

namespace vantorel {
namespace {

constexpr std::string_view blanks = " \t";

bool isBlank(char character) { return blanks.find(character) != std::string_view::npos; }

/// Takes the quoted word at the front off `rest`.
std::string takeQuotedWord(std::string_view& rest) {
  std::string word;
  for (std::size_t index = 1; index < rest.size(); ++index) {
    char character = rest[index];
    if (character == '"') {
      rest.remove_prefix(index + 1);
      if (!rest.empty() && !isBlank(rest.front())) throw WrongScenario{"text right after a closing quote"};
      return word;
    }
    if (character == '\\' && index + 1 < rest.size()) {
      character = rest[++index];
      if (character != '"' && character != '\\') {
        throw WrongScenario{"only \\\" and \\\\ may follow a backslash in quotes"};
      }
    }
    word += character;
  }
  throw WrongScenario{"a quote is not closed"};
}

/// Takes the word at the front off `rest`.
std::string takePlainWord(std::string_view& rest) {
  const std::string_view word = rest.substr(0, rest.find_first_of(blanks));
  rest.remove_prefix(word.size());
  return std::string(word);
}

}  // namespace

std::string_view trimmed(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  const std::size_t first = line.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string> scenarioWords(std::string_view line) {
  std::vector<std::string> words;
  std::string_view rest = line;
  while (!rest.empty()) {
    if (isBlank(rest.front())) {
      rest.remove_prefix(1);
    } else {
      words.push_back(rest.front() == '"' ? takeQuotedWord(rest) : takePlainWord(rest));
    }
  }
  return words;
}

}  // namespace vantorel
