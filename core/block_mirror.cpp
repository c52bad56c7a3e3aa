#include "core/block_mirror.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace veldox {

namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::size_t kWords = sizeof(SharedNumbers) / kWord;
/// Words that are compared in one go: most of the long tables never change.
constexpr std::size_t kStride = 256;

static_assert(std::is_trivially_copyable_v<SharedNumbers>, "a text belongs into SharedTexts");
static_assert(sizeof(SharedNumbers) % kWord == 0);

constexpr std::array kTexts = {
    &ParameterBlock::SmoothHPGraph,
    &ParameterBlock::EntryBoxFontName,
    &ParameterBlock::LabelBoxFontName,
    &ParameterBlock::CommandButtonFontName,
    &ParameterBlock::HelpBoxFontName,
    &ParameterBlock::CamFileHeader,
    &ParameterBlock::CurrentFileName,
    &ParameterBlock::CamFileTitle,
    &ParameterBlock::Notes,
    &ParameterBlock::CompanyName,
    &ParameterBlock::CompanyAddress,
    &ParameterBlock::CompanyCity,
    &ParameterBlock::CompanyPhone,
    &ParameterBlock::CompanyWebSite,
    &ParameterBlock::ParameterFileName,
};
static_assert(sizeof(SharedTexts) == kTexts.size() * sizeof(std::string),
              "a text is missing in the list");

const unsigned char* BytesOf(const ParameterBlock& block) {
  return reinterpret_cast<const unsigned char*>(static_cast<const SharedNumbers*>(&block));
}
unsigned char* BytesOf(ParameterBlock& block) {
  return reinterpret_cast<unsigned char*>(static_cast<SharedNumbers*>(&block));
}

std::uint64_t WordAt(const ParameterBlock& block, std::size_t word) {
  std::uint64_t value = 0;
  std::memcpy(&value, BytesOf(block) + word * kWord, kWord);
  return value;
}

void SetWord(ParameterBlock& block, std::size_t word, std::uint64_t value) {
  std::memcpy(BytesOf(block) + word * kWord, &value, kWord);
}

bool SameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

}  // namespace

std::size_t BlockChange::Bytes() const {
  std::size_t bytes = words.capacity() * sizeof(words[0]) + before.capacity() * sizeof(before[0]) +
                      own.capacity() * sizeof(own[0]) + texts.capacity() * sizeof(texts[0]);
  for (const auto& text : texts) bytes += text.second.capacity();
  return bytes;
}

void BlockChange::Append(BlockChange later) {
  std::vector<std::uint32_t> allWords;
  std::vector<std::uint64_t> allBefore;
  allWords.reserve(words.size() + later.words.size());
  allBefore.reserve(allWords.capacity());
  const auto take = [&](const BlockChange& from, std::size_t i) {
    allWords.push_back(from.words[i]);
    allBefore.push_back(from.before[i]);
  };
  std::size_t here = 0;
  std::size_t there = 0;
  while (here < words.size() || there < later.words.size()) {
    const bool isHere =
        here < words.size() && (there == later.words.size() || words[here] <= later.words[there]);
    if (isHere) {
      if (there < later.words.size() && later.words[there] == words[here]) ++there;
      take(*this, here++);
    } else {
      take(later, there++);
    }
  }
  words = std::move(allWords);
  before = std::move(allBefore);
  for (auto& text : later.texts) {
    const bool known = std::any_of(texts.begin(), texts.end(),
                                   [&](const auto& each) { return each.first == text.first; });
    if (!known) texts.push_back(std::move(text));
  }
  for (const OwnNumber& number : later.own) {
    const bool known = std::any_of(
        own.begin(), own.end(), [&](const OwnNumber& each) { return each.place == number.place; });
    if (!known) own.push_back(number);
  }
}

BlockMirror::BlockMirror(ParameterBlock& block)
    : block_(block), mirror_(std::make_unique<ParameterBlock>(block)) {
  // Padding is compared as well, and need not be copied with a struct.
  std::memcpy(BytesOf(*mirror_), BytesOf(block_), sizeof(SharedNumbers));
}

BlockChange BlockMirror::Take() {
  BlockChange change;
  for (std::size_t from = 0; from < kWords; from += kStride) {
    const std::size_t end = std::min(from + kStride, kWords);
    if (std::memcmp(BytesOf(block_) + from * kWord, BytesOf(*mirror_) + from * kWord,
                    (end - from) * kWord) == 0) {
      continue;
    }
    for (std::size_t word = from; word < end; ++word) {
      const std::uint64_t was = WordAt(*mirror_, word);
      const std::uint64_t is = WordAt(block_, word);
      if (was == is) continue;
      change.words.push_back(static_cast<std::uint32_t>(word));
      change.before.push_back(was);
      SetWord(*mirror_, word, is);
    }
  }
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    std::string& was = (*mirror_).*kTexts[i];
    const std::string& is = block_.*kTexts[i];
    if (was == is) continue;
    change.texts.emplace_back(i, std::move(was));
    was = is;
  }
  for (Own& own : own_) {
    if (SameBits(own.value, *own.place)) continue;
    change.own.push_back({own.place, own.value});
    own.value = *own.place;
  }
  return change;
}

void BlockMirror::Swap(BlockChange& change) {
  for (std::size_t i = 0; i < change.words.size(); ++i) {
    const std::uint64_t is = WordAt(block_, change.words[i]);
    SetWord(block_, change.words[i], change.before[i]);
    SetWord(*mirror_, change.words[i], change.before[i]);
    change.before[i] = is;
  }
  for (auto& [place, before] : change.texts) {
    std::swap(block_.*kTexts[place], before);
    (*mirror_).*kTexts[place] = block_.*kTexts[place];
  }
  for (BlockChange::OwnNumber& number : change.own) {
    std::swap(*number.place, number.before);
    for (Own& own : own_) {
      if (own.place == number.place) own.value = *own.place;
    }
  }
}

bool BlockMirror::Differs(const BlockChange& change) const {
  ParameterBlock& block = block_;
  for (std::size_t i = 0; i < change.words.size(); ++i) {
    if (WordAt(block, change.words[i]) != change.before[i]) return true;
  }
  for (const auto& [place, before] : change.texts) {
    if (block.*kTexts[place] != before) return true;
  }
  return std::any_of(change.own.begin(), change.own.end(), [](const BlockChange::OwnNumber& own) {
    return !SameBits(*own.place, own.before);
  });
}

}  // namespace veldox
