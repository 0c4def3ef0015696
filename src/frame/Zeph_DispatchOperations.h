// The dispatcher's operations: the message fragment of each and the fixed source lines of
// its four handlers (configuration error, std::exception, unknown throw, unknown class).
#ifndef ZEPH_DISPATCHOPERATIONS_H
#define ZEPH_DISPATCHOPERATIONS_H

#include "Zeph_DispatchGuard.h"

namespace ras::operations {

inline constexpr Operation kEnumInstanceNames{
    " while performing enumInstanceNames operation on ", ConfigErrors::Read, 188, 0, 203, 211, 216};
inline constexpr Operation kEnumInstances{
    " while performing enumInstances operation on ", ConfigErrors::Read, 323, 0, 338, 346, 351};
inline constexpr Operation kGetInstance{
    " while performing getInstance operation on ", ConfigErrors::Read, 452, 0, 467, 475, 479};
inline constexpr Operation kCreateInstance{
    " while performing createInstance operation on ", ConfigErrors::Write, 0, 567, 582, 590, 595};
inline constexpr Operation kDeleteInstance{
    " while performing deleteInstance operation on ", ConfigErrors::Write, 0, 676, 691, 699, 704};
inline constexpr Operation kModifyInstance{
    " while performing modifyInstance operation on ", ConfigErrors::Write, 0, 797, 812, 820, 825};
inline constexpr Operation kInvokeMethod{" while performing invokeMethod operation on ",
                                         ConfigErrors::ReadThenWrite,
                                         906,
                                         910,
                                         925,
                                         933,
                                         936};
inline constexpr Operation kAssociators{
    " while performing associators operation on ", ConfigErrors::Read, 972, 0, 987, 995, 1000};
inline constexpr Operation kAssociatorNames{" while performing associatorNames operation on ",
                                            ConfigErrors::Read,
                                            1031,
                                            0,
                                            1046,
                                            1054,
                                            1059};
inline constexpr Operation kReferences{
    " while performing references operation on ", ConfigErrors::Read, 1092, 0, 1107, 1115, 1120};
inline constexpr Operation kReferenceNames{" while performing referenceNames operation on ",
                                           ConfigErrors::Read,
                                           1148,
                                           0,
                                           1163,
                                           1171,
                                           1176};

}  // namespace ras::operations

#endif
