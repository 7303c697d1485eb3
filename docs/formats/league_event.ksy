meta:
  id: league_event
  title: Events of a Zandel division
  file-extension: ze8
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.ZE8
  The file contains one record for each event. The number of an event is its record number.
seq:
  - id: records
    type: record
    size: 222
    repeat: eos
types:
  record:
    seq:
      - id: unnamed_0
        -orig-id: bytes@0
        size: 2
        doc: |
          bytes without a meaning
      - id: event_date
        -orig-id: EventDate
        type: f4
        doc: |
          whole days since 30 December 1899
      - id: unnamed_6
        -orig-id: bytes@6
        size: 8
        doc: |
          bytes without a meaning
      - id: unnamed_14
        -orig-id: bytes@14
        size: 2
        doc: |
          bytes without a meaning
      - id: unnamed_16
        -orig-id: bytes@16
        size: 6
        doc: |
          bytes without a meaning
      - id: unnamed_22
        -orig-id: bytes@22
        size: 10
        doc: |
          bytes without a meaning
      - id: unnamed_32
        -orig-id: bytes@32
        size: 2
        doc: |
          bytes without a meaning
      - id: unnamed_34
        -orig-id: bytes@34
        size: 188
        doc: |
          bytes without a meaning
