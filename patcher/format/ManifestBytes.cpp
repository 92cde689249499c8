// The manifest as bytes; see Manifest.h.
#include <algorithm>
#include <utility>

#include "patcher/format/Fields.h"
#include "patcher/format/Manifest.h"

namespace patch {

namespace {

// The new tree is told along the old one: how many entries stay as they are, how many are passed
// over, how many are told in full. The low bits of a step's number say which.
enum class Step : std::uint8_t { keep = 0, pass = 1, tell = 2 };
constexpr int kStepBits = 2;
constexpr std::uint64_t kStepMask = (1u << kStepBits) - 1;

bool bringsDigest(const Entry& entry) {
    return entry.kind == Kind::file && entry.size > 0;
}
// The others have their base's.
bool bringsDigest(const NewEntry& fresh) {
    return bringsDigest(fresh.entry) && fresh.method != Method::old;
}

class Writer {
  public:
    Bytes write(const Manifest& manifest) {
        for (const std::string* text :
             {&manifest.product, &manifest.oldVersion, &manifest.newVersion})
            m_out.text(*text);
        m_out.varint(manifest.oldEntries.size());
        for (const Entry& entry : manifest.oldEntries) {
            writeEntry(entry);
            if (bringsDigest(entry))
                digest(entry);
        }
        m_out.varint(manifest.newEntries.size());
        m_lastPath.clear();
        writeSteps(manifest);
        m_out.varint(manifest.categoryItems.size());
        for (const CategoryItem& item : manifest.categoryItems) {
            m_out.text(item.item);
            m_out.text(item.path);
        }
        m_out.raw(m_digests);
        return std::move(m_bytes);
    }

  private:
    void step(Step kind, std::uint64_t count) {
        if (count > 0)
            m_out.varint(count << kStepBits | static_cast<std::uint8_t>(kind));
    }

    void writeSteps(const Manifest& manifest) {
        const auto& fresh = manifest.newEntries;
        std::uint64_t oldNow = 0;
        for (std::size_t at = 0; at < fresh.size();) {
            const std::size_t begin = at;
            if (fresh[at].unchanged) {
                step(Step::pass, *fresh[at].unchanged - oldNow);
                oldNow = *fresh[at].unchanged;
                while (at < fresh.size() && fresh[at].unchanged == oldNow)
                    ++at, ++oldNow;
                step(Step::keep, at - begin);
                continue;
            }
            while (at < fresh.size() && !fresh[at].unchanged)
                ++at;
            step(Step::tell, at - begin);
            std::for_each(fresh.begin() + static_cast<std::ptrdiff_t>(begin),
                          fresh.begin() + static_cast<std::ptrdiff_t>(at),
                          [this](const NewEntry& entry) { writeNew(entry); });
        }
    }

    void writeEntry(const Entry& entry) {
        const auto shared =
            static_cast<std::size_t>(std::mismatch(entry.path.begin(), entry.path.end(),
                                                   m_lastPath.begin(), m_lastPath.end())
                                         .first -
                                     entry.path.begin());
        m_out.varint(shared);
        m_out.text(std::string_view(entry.path).substr(shared));
        m_lastPath = entry.path;
        m_out.byte(static_cast<std::uint8_t>(entry.kind));
        if (entry.kind == Kind::link) {
            m_out.text(entry.target);
            return;
        }
        m_out.varint(entry.mode);
        if (entry.kind == Kind::file)
            m_out.varint(entry.size);
        m_out.varint(entry.attributes.size());
        for (const Attribute& attribute : entry.attributes) {
            m_out.text(attribute.name);
            m_out.blob(attribute.value);
        }
    }

    void writeNew(const NewEntry& fresh) {
        writeEntry(fresh.entry);
        m_out.signedVarint(fresh.modified.seconds);
        m_out.varint(fresh.modified.nanoseconds);
        m_out.byte(static_cast<std::uint8_t>(fresh.method));
        if (hasBase(fresh.method))
            m_out.varint(fresh.base);
        if (hasBlock(fresh.method))
            m_out.varint(fresh.length);
        if (bringsDigest(fresh))
            digest(fresh.entry);
    }

    void digest(const Entry& entry) {
        m_digests.insert(m_digests.end(), entry.digest.begin(), entry.digest.end());
    }

    Bytes m_bytes;
    FieldWriter m_out{m_bytes};
    Bytes m_digests;
    std::string m_lastPath;
};

class Reader {
  public:
    explicit Reader(View bytes) : m_in(bytes) {}

    Manifest read() {
        m_manifest.product = m_in.text();
        m_manifest.oldVersion = m_in.text();
        m_manifest.newVersion = m_in.text();
        const std::uint64_t oldCount = m_in.varint(kMostEntries);
        for (std::uint64_t at = 0; at < oldCount; ++at)
            m_manifest.oldEntries.push_back(readEntry());
        readSteps(m_in.varint(kMostEntries));
        const std::uint64_t items = m_in.varint(m_in.left());
        for (std::uint64_t at = 0; at < items; ++at) {
            CategoryItem& item = m_manifest.categoryItems.emplace_back();
            item.item = m_in.text();
            item.path = m_in.text();
        }
        readDigests();
        if (m_in.left() > 0)
            throw FormatError("The manifest goes on after its end.");
        return std::move(m_manifest);
    }

  private:
    void readSteps(std::uint64_t newCount) {
        const auto& old = m_manifest.oldEntries;
        auto& fresh = m_manifest.newEntries;
        m_lastPath.clear();
        std::size_t oldNow = 0;
        while (fresh.size() < newCount) {
            const std::uint64_t word = m_in.varint();
            const std::uint64_t count = word >> kStepBits;
            const auto kind = static_cast<Step>(word & kStepMask);
            const std::size_t room = static_cast<std::size_t>(newCount) - fresh.size();
            if (count == 0 || (kind != Step::tell && count > old.size() - oldNow) ||
                (kind != Step::pass && count > room) || kind > Step::tell)
                throw FormatError("The manifest's steps do not fit its trees.");
            if (kind == Step::pass) {
                oldNow += static_cast<std::size_t>(count);
                continue;
            }
            for (std::uint64_t at = 0; at < count; ++at)
                fresh.push_back(kind == Step::keep ? kept(oldNow++) : readNew());
        }
    }

    NewEntry kept(std::size_t index) const {
        NewEntry fresh;
        fresh.entry = m_manifest.oldEntries[index];
        fresh.unchanged = static_cast<std::uint32_t>(index);
        if (bringsDigest(fresh.entry)) {
            fresh.method = Method::old;
            fresh.base = *fresh.unchanged;
        }
        return fresh;
    }

    Entry readEntry() {
        Entry entry;
        const auto shared = static_cast<std::size_t>(m_in.varint(m_lastPath.size()));
        entry.path = m_lastPath.substr(0, shared) + m_in.text();
        if (entry.path.size() > kLongestPath)
            throw FormatError("The manifest has a path that is too long.");
        m_lastPath = entry.path;
        entry.kind = static_cast<Kind>(m_in.byte());
        if (entry.kind == Kind::link) {
            entry.target = m_in.text();
            return entry;
        }
        entry.mode = static_cast<std::uint16_t>(m_in.varint(0xffff));
        if (entry.kind == Kind::file)
            entry.size = m_in.varint(kLargestFile);
        const std::uint64_t attributes = m_in.varint(m_in.left());
        for (std::uint64_t at = 0; at < attributes; ++at) {
            Attribute& attribute = entry.attributes.emplace_back();
            attribute.name = m_in.text();
            const View value = m_in.blob();
            attribute.value.assign(value.begin(), value.end());
        }
        return entry;
    }

    NewEntry readNew() {
        NewEntry fresh;
        fresh.entry = readEntry();
        fresh.modified.seconds = m_in.signedVarint();
        fresh.modified.nanoseconds = static_cast<std::uint32_t>(m_in.varint(0xffffffff));
        fresh.method = static_cast<Method>(m_in.byte());
        if (hasBase(fresh.method))
            fresh.base = static_cast<std::uint32_t>(m_in.varint(kMostEntries));
        if (hasBlock(fresh.method)) {
            fresh.length = m_in.varint(kLargestFile);
            fresh.offset = m_offset;
            m_offset += fresh.length;
        }
        return fresh;
    }

    // They stand together at the end, as nothing compresses them.
    void readDigests() {
        const Digest ofNothing = digestOf(View{});
        const auto fill = [&](Entry& entry) {
            if (entry.kind != Kind::file)
                return;
            if (!bringsDigest(entry)) {
                entry.digest = ofNothing;
                return;
            }
            const View bytes = m_in.raw(entry.digest.size());
            std::copy(bytes.begin(), bytes.end(), entry.digest.begin());
        };
        auto& old = m_manifest.oldEntries;
        std::for_each(old.begin(), old.end(), fill);
        for (NewEntry& fresh : m_manifest.newEntries)
            if (fresh.method != Method::old)
                fill(fresh.entry);
            else if (fresh.base < old.size())
                fresh.entry.digest = old[fresh.base].digest;
    }

    FieldReader m_in;
    Manifest m_manifest;
    std::string m_lastPath;
    std::uint64_t m_offset = 0;
};

} // namespace

Bytes encoded(const Manifest& manifest) {
    return Writer().write(manifest);
}

Manifest decodedManifest(View bytes, std::uint64_t dataLength) {
    Manifest manifest = Reader(bytes).read();
    validate(manifest, dataLength);
    return manifest;
}

} // namespace patch
