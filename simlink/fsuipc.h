#pragma once

#include <cstdint>

/// The client of FSUIPC, the add-on inside the simulator that answers for its live state.
///
/// A batch of requests is queued, sent as a whole, and answered as a whole. Offsets are places in
/// the simulator's state area, whose values are little-endian. Each operation answers true with
/// `result` at `Link_Ok`, or false with the reason in `result`.
namespace skerrand {

enum Link_Result : std::int32_t {
    Link_Ok = 0,
    Link_Already_Open = 1,
    Link_No_Server = 2,   ///< neither window exists: no simulator, or none with FSUIPC
    Link_No_Message = 3,  ///< the message could not be registered
    Link_No_Atom = 4,
    Link_No_Mapping = 5,  ///< the block could not be made, or one of its name exists already
    Link_No_View = 6,     ///< the block could not be mapped
    Link_Bad_Version = 7,
    Link_Wrong_Simulator = 8,
    Link_Not_Open = 9,
    Link_Nothing_Queued = 10,
    Link_Timed_Out = 11,             ///< every send failed, the last one by its time-out
    Link_Send_Failed = 12,           ///< every send failed, the last one by an error
    Link_Refused = 13,               ///< the server replied anything but 1
    Link_Bad_Version_Fallback = 14,  ///< as 7, of a server found by its second window class
    Link_Batch_Full = 15,            ///< the request does not fit; the batch stays as it was
};

/// Forgets whatever link there was without taking it down. Once, before the first opening.
void Clear_Link();

/// Opens the link to a simulator whose version code is `required_fs` (6 is FS2002), 0 for any. On
/// failure no link stands, except that one which was open already stays. Waits up to 5 times for
/// the version words, 100 ms each beside the sends.
bool Open_Link(std::int32_t required_fs, std::int32_t& result);

/// Takes the link down, also one half made; harmless on a closed one.
void Close_Link();

/// Queues a read of `byte_count` bytes into a variable, which must live until `Process_Queue`. A
/// null address asks for bytes that go nowhere. Requests and their data share 32512 bytes: 16 a
/// read, 12 a write, 4 for the end of the batch.
bool Queue_Read(std::uint32_t fs_offset, std::uint32_t byte_count, void* client_address,
                std::int32_t& result);

/// Queues a write of bytes that are copied at once. The source may be null only for 0 bytes.
bool Queue_Write(std::uint32_t fs_offset, std::uint32_t byte_count, const void* source_address,
                 std::int32_t& result);

/// Sends the batch, up to 11 times, 2 seconds each and 100 ms apart, and copies the answers to the
/// variables. The batch is empty afterwards, whatever the outcome. If the server has spoilt the
/// block, the answers ahead of the damage are copied, and it fails with `result` untouched.
bool Process_Queue(std::int32_t& result);

}  // namespace skerrand
