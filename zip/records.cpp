// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/records.h"

namespace zip {
namespace {

/// Takes numbers out of bytes, and puts them into a text: each record has one list of its fields for both.
class c_taker {
public:
    explicit c_taker(const char* bytes) : m_bytes(bytes) {}
    template <typename... t_numbers>
    void operator()(t_numbers&... numbers) {
        (take(numbers), ...);
    }

private:
    template <typename t_number>
    void take(t_number& number) {
        number = 0;
        for (std::size_t i = 0; i < sizeof(t_number); ++i) {
            number = static_cast<t_number>(number | t_number{static_cast<unsigned char>(*m_bytes++)} << 8 * i);
        }
    }
    const char* m_bytes;
};

class c_putter {
public:
    explicit c_putter(std::string_view signature) : m_text(signature) {}
    template <typename... t_numbers>
    void operator()(const t_numbers&... numbers) {
        (put(numbers), ...);
    }
    std::string&& take() { return std::move(m_text); }

private:
    template <typename t_number>
    void put(t_number number) {
        for (std::size_t i = 0; i < sizeof(t_number); ++i) m_text += static_cast<char>(number >> 8 * i & 0xFFU);
    }
    std::string m_text;
};

void sum_fields(auto& transfer, auto& header) {
    transfer(header.crc32, header.compressed_size, header.uncompressed_size);
}

/// What the local and the central header have in common, up to the length of the extra data.
void shared_fields(auto& transfer, auto& header, auto& lengths) {
    transfer(header.version_needed, header.flags, header.method, header.time, header.date);
    sum_fields(transfer, header);
    transfer(lengths.name, lengths.extra);
}

void central_fields(auto& transfer, auto& header, auto& lengths) {
    transfer(header.version_made_by);
    shared_fields(transfer, header, lengths);
    transfer(lengths.comment, header.disk_number_start, header.internal_attributes, header.external_attributes,
             header.local_header_offset);
}

void end_fields(auto& transfer, auto& end) {
    transfer(end.disk, end.directory_disk, end.entries_on_disk, end.entries, end.directory_size, end.directory_offset,
             end.comment_length);
}

/// Entries are written without extra data and comments.
s_text_lengths lengths_of(const CZipEntryHeader& header) {
    return {static_cast<std::uint16_t>(header.file_name.size()), 0, 0};
}

}  // namespace

void parse(const char* bytes, CZipEntryHeader& header, s_text_lengths& lengths) {
    c_taker taker(bytes + k_central_signature.size());
    central_fields(taker, header, lengths);
}

void parse_local(const char* bytes, CZipEntryHeader& header, s_text_lengths& lengths) {
    c_taker taker(bytes + k_local_signature.size());
    shared_fields(taker, header, lengths);
}

void parse(const char* bytes, s_end_record& end) {
    c_taker taker(bytes + k_end_signature.size());
    end_fields(taker, end);
}

std::vector<CZipExtraField> parse_extra(std::string_view data) {
    std::vector<CZipExtraField> fields;
    constexpr std::size_t head_size = 4;
    while (data.size() >= head_size) {
        std::uint16_t id = 0;
        std::uint16_t size = 0;
        c_taker taker(data.data());
        taker(id, size);
        if (size > data.size() - head_size) break;
        fields.push_back({id, std::string(data.substr(head_size, size))});
        data.remove_prefix(head_size + size);
    }
    // An empty field of four bytes takes ten times that here; twice as much again would be room to spare.
    fields.shrink_to_fit();
    return fields;
}

std::string print_central(const CZipEntryHeader& header) {
    const s_text_lengths lengths = lengths_of(header);
    c_putter putter(k_central_signature);
    central_fields(putter, header, lengths);
    return putter.take() + header.file_name;
}

std::string print_local(const CZipEntryHeader& header) {
    const s_text_lengths lengths = lengths_of(header);
    c_putter putter(k_local_signature);
    shared_fields(putter, header, lengths);
    return putter.take() + header.file_name;
}

std::string print_sums(const CZipEntryHeader& header) {
    c_putter putter("");
    sum_fields(putter, header);
    return putter.take();
}

std::string print(const s_end_record& end) {
    c_putter putter(k_end_signature);
    end_fields(putter, end);
    return putter.take();
}

std::uint32_t number_at(std::string_view data, std::size_t position) {
    std::uint32_t number = 0;
    c_taker taker(data.data() + position);
    taker(number);
    return number;
}

}  // namespace zip
