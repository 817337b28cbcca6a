// What a picture file says about itself, to be said again by the files that are made of it.
#pragma once

#include <filesystem>
#include <memory>

/// Exif, IPTC and XMP entries of a file that stay true when the pixels are edited: camera, dates, place, author and
/// the like. Left out are size, resolution, orientation, color space and embedded previews, which a new file has of
/// its own. Holds nothing of the file itself, which may be replaced. Never changes, so threads may share it.
class PictureMetadata {
public:
    struct Entries;

    /// Null when the file says nothing or can't be read; damage is logged. Reads headers only, and blocks.
    static std::shared_ptr<const PictureMetadata> ofFile(const std::filesystem::path& file);

    PictureMetadata(std::filesystem::path file, std::unique_ptr<Entries> entries);
    ~PictureMetadata();

    /// All but where the picture was taken, in coordinates and in words.
    std::shared_ptr<const PictureMetadata> withoutPlace() const;

    const Entries& entries() const { return *m_entries; }
    const std::filesystem::path& file() const { return m_file; } // where they come from
    double dotsPerInch() const; // that the file gave for its own pixels; 0 when it gave none

private:
    std::filesystem::path m_file;
    std::unique_ptr<Entries> m_entries;
};
