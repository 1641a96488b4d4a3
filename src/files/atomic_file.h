// A file that appears, or replaces an old one, only when it is complete. Knows no picture.
#pragma once

#include "files/byte_sink.h"
#include "files/descriptor.h"

#include <functional>
#include <optional>
#include <string>

namespace pixano {

/// The bytes go to a temporary file in the target's folder, which `Commit` puts in its place.
/// Without `Commit` it vanishes and the old file stays as it was.
class AtomicFile final : public ByteSink {
  public:
    enum class Purpose {
        /// A file of the user's: links are kept and the file that they lead to is replaced, with
        /// the permissions that it had; on disk before it takes the old one's place.
        Document,
        /// A file of the program's own: whatever has the name is replaced, links are not followed,
        /// only the user may read it; nothing waits for the disk.
        Working,
        /// The same, but on disk before it takes its place.
        Rescue
    };

    enum class Temporary {
        Unnamed,  ///< without a name until it is complete, where the file system can do that
        Named
    };

    /// Throws Refusal.
    AtomicFile(const std::string& path, Purpose purpose, Temporary temporary);
    ~AtomicFile() override;

    bool Write(std::span<const std::byte> bytes) noexcept override;
    int Error() const noexcept override { return sink_->Error(); }

    /// Puts the file in its place. False, and nothing has changed, where a file without a name
    /// cannot be given one: it has to be written again as Temporary::Named. Throws Refusal.
    bool Commit();

  private:
    void MakeUnnamed(unsigned permissions);
    void MakeNamed(unsigned permissions);
    bool GiveName();
    void KeepOwnerAndPermissions();

    Purpose purpose_;
    Descriptor folder_;
    std::string name_;
    std::string temporary_;
    Descriptor file_;
    std::optional<DescriptorSink> sink_;
    /// Bytes that the disk was told to take, and those since.
    std::size_t begun_ = 0;
    std::size_t waiting_ = 0;
};

/// Writes the file by `fill`, which may be called twice, and puts it in its place. When anything
/// fails the old file is untouched and no new one is left. Throws Refusal, and what `fill` throws.
void ReplaceFile(const std::string& path, AtomicFile::Purpose purpose,
                 const std::function<void(ByteSink&)>& fill);

}  // namespace pixano
