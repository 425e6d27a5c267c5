// CString.cpp - the shared block behind a text.
#include "platform/CString.h"

#include <cstring>
#include <limits>
#include <new>
#include <utility>

CString::CString(const char* text) : CString(text == nullptr ? std::string_view() : std::string_view(text)) {}

CString::CString(std::string_view text) : block_(text.empty() ? nullptr : NewBlock(text)) {}

CString& CString::operator=(const CString& other) noexcept {
  CString copy(other);
  std::swap(block_, copy.block_);
  return *this;
}

CString& CString::operator=(CString&& other) noexcept {
  std::swap(block_, other.block_);
  return *this;
}

CString::Block* CString::NewBlock(std::string_view text) {
  if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) throw std::bad_alloc();
  void* memory = ::operator new(sizeof(Block) + text.size() + 1);
  auto* block = new (memory) Block{1, static_cast<int>(text.size())};
  char* characters = Characters(block);
  std::memcpy(characters, text.data(), text.size());
  characters[text.size()] = '\0';
  return block;
}

void CString::Release() noexcept {
  if (block_ != nullptr && --block_->shares == 0) ::operator delete(block_);
  block_ = nullptr;
}
