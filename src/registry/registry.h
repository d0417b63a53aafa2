// What exists: the families of transforms, their lengths and element types, and the names that
// follow from them. Names are made here and nowhere else; declarations, tables, the symbol map,
// tests and benchmarks all walk this registry.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kfm::registry {

struct Element {
    std::string_view suffix;   // "32fc", the tail of every function name
    std::string_view type;     // "Kfm32fc"
    int bytes;                 // of one element
    bool complex;
    bool doublePrecision;

    // Of its numbers, in C++.
    std::string realType() const { return doublePrecision ? "double" : "float"; }
};

struct Family {
    std::string_view name;           // "DFTFwd_CToC"
    std::string_view folder;         // below src/, where its kernels are assembled
    std::string_view kernelSource;   // "DFT_CToC": stem of its generated files
    int first, last;                 // lengths, or orders
    std::vector<const Element*> elements;
    bool byOrder;   // members are orders, and a work buffer is the last argument

    bool inverse() const { return name.starts_with("DFTInv"); }
    // What declarations call its length.
    std::string lengthName() const { return byOrder ? "order" : "length"; }
    // Elements in the signal of a member.
    std::size_t samples(int member) const {
        return byOrder ? std::size_t{1} << member : static_cast<std::size_t>(member);
    }
};

std::span<const Element> elements();
const Element* findElement(std::string_view suffix);

std::span<const Family> families();
const Family* findFamily(std::string_view name);
// Those whose functions stand in the same generated files.
std::vector<const Family*> familiesOf(std::string_view kernelSource);

// Wherever a length is asked for below, an order is meant in a family of orders.

// "DFTFwd_CToC_16_32fc", and from it "kfmgDFTFwd_CToC_16_32fc", "kfmgDFTFwd_CToC_32fc",
// "owngDFTFwd_CToC_16_32fc_unaligned".
std::string transformName(const Family& family, int length, const Element& element);
std::string functionName(const Family& family, int length, const Element& element);
std::string genericName(const Family& family, const Element& element);
std::string unalignedName(const Family& family, int length, const Element& element);

// "kfmrDFTFwd_CToC_32fc", of the library of rows.
std::string rowsName(const Family& family, const Element& element);

// Whether 16-byte alignment selects between two paths, and whether the second path is a
// function of its own.
bool testsAlignment(const Family& family, int length, const Element& element);
bool hasUnalignedCopy(const Family& family, int length, const Element& element);

// Whether the function stages its work in the buffer, which it allocates where the caller has none.
bool usesBuffer(const Family& family, int length);

// Every exported name: the fixed lengths of each family and element type in order, then the
// generic entries, then the functions outside families.
std::vector<std::string> exportedNames();
// Of the library of rows: an entry for each family and element type, then the others.
std::vector<std::string> exportedRowsNames();

}   // namespace kfm::registry
