// The fields of a page, driven by one table a page: which field shows what of the driver's record.
#pragma once

#include <cstdint>
#include <numeric>
#include <span>
#include <string>
#include <vector>

class myEdit;

// A field shows a text, or a count less the page's baseline for it; one of the two is set.
template <class Record>
struct StatField {
  int id;
  const char* (*text)(const Record&) = nullptr;
  std::uint32_t (*count)(const Record&) = nullptr;  // the driver's own, which wraps
  bool isSigned = false;                            // how a count reads
};

// A count that the driver keeps in several words.
template <std::size_t count>
std::uint32_t sumOf(const std::uint32_t (&words)[count]) {
  return std::accumulate(words, words + count, 0U);
}

// The fields as they are shown. Writes nothing that a field shows already.
class ShownFields {
 protected:
  struct Shown {
    std::string text;
    myEdit* field = nullptr;
    std::uint32_t baseline = 0;
  };

  explicit ShownFields(std::size_t count) : shown_(count) {}
  void blankAll();
  static void write(const Shown& shown, const char* text);
  static void writeCount(Shown& shown, std::uint32_t count, bool isSigned, bool clear);

  std::vector<Shown> shown_;  // never grows: the fields are bound to the texts
};

template <class Record>
class StatFields : private ShownFields {
 public:
  // `forms` must outlive it.
  explicit StatFields(std::span<const StatField<Record>> forms)
      : ShownFields(forms.size()), forms_(forms) {}

  // Calls `make(id, text)`, which gives the field of a form bound to its text, for each form.
  template <class Make>
  void create(Make make) {
    for (std::size_t i = 0; i < forms_.size(); ++i)
      shown_[i].field = make(forms_[i].id, &shown_[i].text);
  }

  // With `clear`, the counts start from 0 here.
  void show(const Record& record, bool clear) {
    for (std::size_t i = 0; i < forms_.size(); ++i) {
      const StatField<Record>& form = forms_[i];
      if (form.text)
        write(shown_[i], form.text(record));
      else
        writeCount(shown_[i], form.count(record), form.isSigned, clear);
    }
  }
  void blank() { blankAll(); }

 private:
  std::span<const StatField<Record>> forms_;
};
