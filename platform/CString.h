// CString.h - the framework's text: 8-bit, as small as a pointer, copies share one block.
#pragma once

#include <cstddef>
#include <string_view>

// A text never changes once it is made, so copies share their characters
// until the last one goes. The share count is plain: the module's texts stay
// on one thread. Making a text raises std::bad_alloc when memory is short.
class CString {
 public:
  CString() noexcept = default;
  // A null text is empty.
  explicit CString(const char* text);
  explicit CString(std::string_view text);
  CString(const CString& other) noexcept : block_(other.block_) { Share(); }
  CString(CString&& other) noexcept : block_(other.block_) { other.block_ = nullptr; }
  CString& operator=(const CString& other) noexcept;
  CString& operator=(CString&& other) noexcept;
  ~CString() { Release(); }

  // The characters with a zero behind them; valid as long as a text that shares them.
  const char* GetString() const noexcept { return block_ == nullptr ? "" : Characters(block_); }
  int GetLength() const noexcept { return block_ == nullptr ? 0 : block_->length; }
  bool IsEmpty() const noexcept { return block_ == nullptr; }
  std::string_view View() const noexcept { return {GetString(), static_cast<std::size_t>(GetLength())}; }

  // Exact and case-sensitive, byte by byte.
  friend bool operator==(const CString& a, const CString& b) noexcept {
    return a.block_ == b.block_ || a.View() == b.View();
  }

 private:
  // Stands in front of the characters; null is the empty text.
  struct Block {
    int shares;
    int length;
  };

  static char* Characters(Block* block) noexcept { return reinterpret_cast<char*>(block + 1); }
  static Block* NewBlock(std::string_view text);
  void Share() const noexcept {
    if (block_ != nullptr) ++block_->shares;
  }
  void Release() noexcept;

  Block* block_ = nullptr;
};
