meta:
  id: quenby_roster
  title: Rosters of Quenby
  file-extension: q9d
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  QBROSTER.Q9D
  The file contains one record for each roster. The number of a roster is its record number.
seq:
  - id: records
    type: record
    size: 413
    repeat: eos
types:
  record:
    seq:
      - id: is_roster_active
        -orig-id: IsRosterActive
        type: s2
        doc: |
          -1: in use; 0: deleted, free for another roster
      - id: unnamed_2
        -orig-id: bytes@2
        size: 60
        doc: |
          bytes without a meaning
      - id: unnamed_62
        -orig-id: bytes@62
        size: 5
        doc: |
          bytes without a meaning
      - id: club_name
        -orig-id: ClubName
        type: str
        size: 40
        pad-right: 0x20
        doc: |
          name of the roster
      - id: club_address
        -orig-id: ClubAddress
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 3
        doc: |
          by index 1 to 3
      - id: club_phone
        -orig-id: ClubPhone
        type: str
        size: 12
        pad-right: 0x20
      - id: unnamed_209
        -orig-id: bytes@209
        size: 204
        doc: |
          bytes without a meaning
