#include "app/demo/demo_golfers.h"

namespace golf {
namespace {

constexpr DemoGolfer kMembers[] = {
    {101, "Anna", "Bergstrom", true, 14.2f, 16, 'B'},
    {102, "Tom", "Calder", false, 6.8f, 8, 'A'},
    {103, "Ines", "Duarte", true, 22.5f, 26, 'C'},
    {104, "Walt", "Eames", false, 18.1f, 21, 'C'},
    {105, "Ruth", "Farrow", true, 9.9f, 11, 'A'},
    {106, "Hugo", "Grimaldi", false, 11.4f, 13, 'B'},
    {107, "Lena", "H\xF6lzer", true, 27.3f, 31, 'D'},
    {108, "Omar", "Idris", false, -1.2f, -1, 'A'},
    {109, "Peg", "Jarvis", true, 31.0f, 36, 'D'},
    {110, "Sam", "Kettle", false, 15.7f, 18, 'B'},
    {111, "Nora", "Lindqvist", true, 19.6f, 22, 'C'},
    {112, "Ben", "Marlow", false, 12.0f, 14, 'B'},
};

constexpr DemoGolfer kNineHolers[] = {
    {201, "Ada", "Norwood", true, 11.2f, 12, 'B'},  {202, "Carl", "Oakes", false, 8.4f, 9, 'A'},
    {203, "Edda", "Prince", true, 16.8f, 18, 'C'},  {204, "Finn", "Quill", false, 5.1f, 5, 'A'},
    {205, "Greta", "Ramsey", true, 14.0f, 15, 'C'},
};

constexpr DemoGolfer kGuests[] = {
    {301, "Vera", "Stoll", true, 21.3f, 25, 'C'},
    {302, "Ned", "Umber", false, 13.4f, 16, 'B'},
};

}  // namespace

std::span<const DemoGolfer> DemoMembers() { return kMembers; }
std::span<const DemoGolfer> DemoNineHolers() { return kNineHolers; }
std::span<const DemoGolfer> DemoGuests() { return kGuests; }

}  // namespace golf
