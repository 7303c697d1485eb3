meta:
  id: league_control
  title: Control file of a Zandel division
  file-extension: zl8
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.ZL8
  The file contains one record.
seq:
  - id: records
    type: record
    size: 405
    repeat: eos
types:
  record:
    seq:
      - id: unnamed_0
        -orig-id: bytes@0
        size: 2
        doc: |
          bytes without a meaning
      - id: league_name
        -orig-id: LeagueName
        type: str
        size: 40
        pad-right: 0x20
      - id: unnamed_42
        -orig-id: bytes@42
        size: 40
        doc: |
          bytes without a meaning
      - id: last_sub_record
        -orig-id: LastSubRecord
        type: s2
        doc: |
          substitutes are in records 6 to this one
      - id: unnamed_84
        -orig-id: bytes@84
        size: 4
        doc: |
          bytes without a meaning
      - id: player_factor1
        -orig-id: PlayerFactor1
        type: s2
        doc: |
          times `PlayerFactor2`: the number of players
      - id: player_factor2
        -orig-id: PlayerFactor2
        type: s2
        doc: |
          times `PlayerFactor1`: the number of players
      - id: event_count
        -orig-id: EventCount
        type: s2
        doc: |
          events in the schedule
      - id: current_event
        -orig-id: CurrentEvent
        type: s2
        doc: |
          the event to be played next
      - id: unnamed_96
        -orig-id: bytes@96
        size: 20
        doc: |
          bytes without a meaning
      - id: unnamed_116
        -orig-id: bytes@116
        size: 8
        doc: |
          bytes without a meaning
      - id: unnamed_124
        -orig-id: bytes@124
        size: 8
        doc: |
          bytes without a meaning
      - id: unnamed_132
        -orig-id: bytes@132
        size: 60
        doc: |
          bytes without a meaning
      - id: league_holes
        -orig-id: LeagueHoles
        type: s2
        doc: |
          holes of a round: 9 or 18
      - id: unnamed_194
        -orig-id: bytes@194
        size: 120
        doc: |
          bytes without a meaning
      - id: unnamed_314
        -orig-id: bytes@314
        size: 12
        doc: |
          bytes without a meaning
      - id: unnamed_326
        -orig-id: bytes@326
        size: 20
        doc: |
          bytes without a meaning
      - id: unnamed_346
        -orig-id: bytes@346
        size: 20
        doc: |
          bytes without a meaning
      - id: unnamed_366
        -orig-id: bytes@366
        size: 6
        doc: |
          bytes without a meaning
      - id: unnamed_372
        -orig-id: bytes@372
        size: 1
        doc: |
          bytes without a meaning
      - id: unnamed_373
        -orig-id: bytes@373
        size: 32
        doc: |
          bytes without a meaning
