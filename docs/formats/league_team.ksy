meta:
  id: league_team
  title: Teams of a Zandel division
  file-extension: zt8
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.ZT8
  The file contains one record for each team. The number of a team is its record number.
seq:
  - id: records
    type: record
    size: 4400
    repeat: eos
types:
  record:
    seq:
      - id: unnamed_0
        -orig-id: bytes@0
        size: 50
        doc: |
          bytes without a meaning
      - id: unnamed_50
        -orig-id: bytes@50
        size: 2
        doc: |
          bytes without a meaning
      - id: unnamed_52
        -orig-id: bytes@52
        size: 48
        doc: |
          bytes without a meaning
      - id: unnamed_100
        -orig-id: bytes@100
        size: 2000
        doc: |
          bytes without a meaning
      - id: unnamed_2100
        -orig-id: bytes@2100
        size: 200
        doc: |
          bytes without a meaning
      - id: event_course
        -orig-id: EventCourse
        type: s2
        repeat: expr
        repeat-expr: 50
        doc: |
          number of the course in Zandel's library
          by event 1 to 50
      - id: unnamed_2400
        -orig-id: bytes@2400
        size: 800
        doc: |
          bytes without a meaning
      - id: unnamed_3200
        -orig-id: bytes@3200
        size: 200
        doc: |
          bytes without a meaning
      - id: event_tee
        -orig-id: EventTee
        type: u1
        repeat: expr
        repeat-expr: 200
        doc: |
          tee number; column 1: men, 2: ladies; 3 and 4 are not used
          by event 1 to 50 and column 1 to 4; column varies fastest
      - id: unnamed_3600
        -orig-id: bytes@3600
        size: 800
        doc: |
          bytes without a meaning
