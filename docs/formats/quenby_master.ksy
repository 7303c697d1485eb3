meta:
  id: quenby_master
  title: Settings of Quenby
  file-extension: q9d
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  QBMASTER.Q9D
  The file contains one record.
seq:
  - id: records
    type: record
    size: 1042
    repeat: eos
types:
  record:
    seq:
      - id: unnamed_0
        -orig-id: bytes@0
        size: 4
        doc: |
          bytes without a meaning
      - id: active_roster
        -orig-id: ActiveRoster
        type: s2
        doc: |
          record of `QBROSTER.Q9D`; -1: all rosters
      - id: last_roster_view_loaded
        -orig-id: LastRosterViewLoaded
        type: str
        size: 60
        pad-right: 0x20
      - id: roster_column_sorted
        -orig-id: RosterColumnSorted
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          columns that the roster grid is sorted by
          by index 1 to 3
      - id: roster_column_sorted_how
        -orig-id: RosterColumnSortedHow
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          direction, 0 or -1
          by index 1 to 3
      - id: unnamed_78
        -orig-id: bytes@78
        size: 540
        doc: |
          bytes without a meaning
      - id: active_tournament
        -orig-id: ActiveTournament
        type: s4
        doc: |
          the number in the names of its files
      - id: last_tournament_view_loaded
        -orig-id: LastTournamentViewLoaded
        type: str
        size: 60
        pad-right: 0x20
      - id: misc_tour_text_field_name
        -orig-id: MiscTourTextFieldName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 10
        doc: |
          captions of a tournament player's texts
          by index 1 to 10
      - id: misc_text_field_name
        -orig-id: MiscTextFieldName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 10
        doc: |
          captions of a golfer's own texts
          by index 1 to 10
      - id: misc_date_field_name
        -orig-id: MiscDateFieldName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          captions of a golfer's own dates
          by index 1 to 5
      - id: misc_curr_field_name
        -orig-id: MiscCurrFieldName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          captions of a golfer's own amounts
          by index 1 to 5
