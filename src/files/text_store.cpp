#include "files/text_store.h"

#include "files/own_file.h"
#include "files/refusal.h"
#include "files/regular_file.h"
#include "files/value_text.h"

#include <cstring>
#include <filesystem>
#include <vector>

namespace pixano {
namespace {

class Text : public PixelFile::Store {
  public:
    using Window = PixelFile::Store::Window;

    explicit Text(std::string name) : name_(std::move(name)) {}

    Window Create() override
    {
        Close();
        TakeNameInFull();
        file_ = TellRefusal("scrivere", inFull_, [&] { return CreateOwnFile(name_); });
        PrepareBuffers();
        unwritten_ = 0;
        return {values_.data(), values_.data() + ValuesPerWindow};
    }

    Window Append(Colour* end) override
    {
        char* const unwritten = text_.data() + unwritten_;
        unwritten_ =
            static_cast<std::size_t>(FormatLines({values_.data(), end}, unwritten) - text_.data());
        if (unwritten_ >= BlockLength) {
            WriteOut(BlockLength);
            std::memmove(text_.data(), text_.data() + BlockLength, unwritten_);
        }
        return {values_.data(), values_.data() + ValuesPerWindow};
    }

    void Finish(Colour* end) override
    {
        Append(end);
        WriteOut(unwritten_);
        TellRefusal("scrivere", inFull_, [&] {
            if (!file_.Close()) throw Refusal(errno);
        });
    }

    void Open() override
    {
        TakeNameInFull();
        file_ = TellRefusal("leggere", inFull_, [&] {
            return std::move(OpenRegularFile(name_, Links::Refused).descriptor);
        });
        PrepareBuffers();
        unread_ = {text_.data(), text_.data()};
        atEnd_ = false;
    }

    Window Next() override
    {
        Colour* const first = values_.data();
        for (;;) {
            if (!atEnd_ && unread_.size() < LongestLine) ReadMore();
            Colour* const last = ParseLines(unread_, {first, ValuesPerWindow});
            if (last != first) return {first, last};
            // The next line is no plain one, or the last of the file.
            if (atEnd_ || unread_.size() >= LongestLine) return {first, ReadAwkwardValue(first)};
        }
    }

    void Close() override { file_ = Descriptor(); }

    void Kill() override
    {
        TakeNameInFull();
        TellRefusal("eliminare", inFull_, [&] { DeleteOwnFile(name_); });
    }

  private:
    /// Few enough for the processor to have them at hand when they are formatted.
    static constexpr std::size_t ValuesPerWindow = 1 << 12;
    /// Characters that are written at once. Whole pages: a page written in two parts costs the
    /// system almost twice.
    static constexpr std::size_t BlockLength = 1 << 18;
    static constexpr std::size_t TextLength = BlockLength + ValuesPerWindow * LongestLine;

    void PrepareBuffers()
    {
        values_.resize(ValuesPerWindow);
        text_.resize(TextLength);
    }

    /// Messages name the folder too, which is the current one as a rule.
    void TakeNameInFull()
    {
        std::error_code error;
        inFull_ = std::filesystem::absolute(name_, error).string();
        if (error) inFull_ = name_;
    }

    /// Writes the text's first `length` characters.
    void WriteOut(std::size_t length)
    {
        TellRefusal("scrivere", inFull_, [&] {
            DescriptorSink sink(file_.Number());
            if (!sink.Write(std::as_bytes(std::span(text_).first(length))))
                throw Refusal(sink.Error());
        });
        unwritten_ -= length;
    }

    /// The value at the start of the unread text, read by the general rules. Gives its end.
    Colour* ReadAwkwardValue(Colour* value)
    {
        std::optional<std::string_view> item = TakeItem(unread_, atEnd_);
        while (!item && !atEnd_ && unread_.size() < TextLength) {
            ReadMore();
            item = TakeItem(unread_, atEnd_);
        }
        if (!item && atEnd_)
            throw Fault(FaultKind::InputPastEnd, "Il file «" + inFull_ + "» finisce troppo presto");
        // An item longer than any number is: let it be told as what it is.
        *value = ValueOf(item.value_or("…"), inFull_);
        return value + 1;
    }

    void ReadMore()
    {
        std::memmove(text_.data(), unread_.data(), unread_.size());
        // As much as the processor still has at hand when it is parsed.
        const std::size_t room = std::min(TextLength - unread_.size(), ReadLength);
        const ssize_t got = TellRefusal("leggere", inFull_, [&] {
            char* const end = text_.data() + unread_.size();
            const int count =
                Uninterrupted([&] { return static_cast<int>(read(file_.Number(), end, room)); });
            if (count < 0) throw Refusal(errno);
            return count;
        });
        atEnd_ = got == 0;
        unread_ = {text_.data(), unread_.size() + static_cast<std::size_t>(got)};
    }
    static constexpr std::size_t ReadLength = 1 << 16;

    std::string name_;
    std::string inFull_;
    Descriptor file_;
    std::vector<Colour> values_;
    std::vector<char> text_;
    /// How many characters at the start of the text are still to be written.
    std::size_t unwritten_ = 0;
    std::string_view unread_;
    bool atEnd_ = false;
};

}  // namespace

std::unique_ptr<PixelFile::Store> TextStore(std::string name)
{
    return std::make_unique<Text>(std::move(name));
}

}  // namespace pixano
