#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The simulator's list of scenery areas and the folders that hold their BGL files.
namespace skerrand {

/// One area, each field just as its value stands in the file (Windows-1252, without the blanks
/// round it); empty where the key is missing. Nothing but `title` and `local` is used.
struct Scenery_Area {
    std::string title;
    std::string texture_id;
    std::string active;
    std::string layer;
    std::string required;
    std::string remote;
    /// As in the file; after `Resolve_Local_Paths` the lower-case folder of the area's BGL files,
    /// or empty if the area is to be left out.
    std::string local;

    friend bool operator==(const Scenery_Area&, const Scenery_Area&) = default;
};

/// The most areas that the table takes: they are counted in an Integer.
inline constexpr std::size_t Most_Areas = 32767;

extern std::vector<Scenery_Area> scenery_areas;  ///< in the order of the file

/// The areas in the text of a scenery.cfg, whose lines end at CR LF, LF or CR. A section is an area
/// if its head has "[area." in it, in any case. Any bytes will do; areas beyond `Most_Areas` are
/// passed over.
///
/// The text of a section starts where its head line *first* stands in the file and reaches to where
/// the next head first stands, so that of two sections with the same head both get the first one's
/// text. A field is what stands behind the first "KEY=" in that text, in any case of the letters,
/// up to the end of the line. It is a plain search: a key is found in a longer name that ends in it
/// too, and "KEY =" is not found.
std::vector<Scenery_Area> Parse_Scenery_Cfg(std::string_view file);

/// Reads the file of that path into `scenery_areas`. False if it cannot be read; the table is then
/// empty.
bool Read_Scenery_Cfg(std::string_view path);

/// Turns `local` of every area into its folder, absolute as given, else below `fs_root`; empties it
/// if no such folder exists.
///
/// `drive_entries` are the entries of a drive list: the two characters of the drive, a blank, and
/// from the fourth character on the drive's label or the network path that it is mapped to. Where
/// such a label stands in `local`, the drive takes its place.
void Resolve_Local_Paths(std::span<const std::string> drive_entries);

}  // namespace skerrand
