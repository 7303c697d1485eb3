meta:
  id: team
  title: Teams of a Quenby tournament
  file-extension: q9t
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.Q9T
  The file contains one record for each team. The number of a team is its record number. "Corrected" means that Golf Transfer replaces an invalid value when it reads the record.
seq:
  - id: records
    type: record
    size: 1339
    repeat: eos
types:
  record:
    seq:
      - id: team_name
        -orig-id: TeamName
        type: str
        size: 40
        pad-right: 0x20
      - id: sponsor
        -orig-id: Sponsor
        type: str
        size: 40
        pad-right: 0x20
      - id: flight
        -orig-id: Flight
        type: str
        size: 1
        pad-right: 0x20
        repeat: expr
        repeat-expr: 7
        doc: |
          flight letter; corrected to `A`
          by round 1 to 7
      - id: course_number_played
        -orig-id: CourseNumberPlayed
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          in Quenby's course library; 0: an away course
          by round 1 to 7
      - id: rounds_101
        type: round_101
        repeat: expr
        repeat-expr: 7
        doc: |
          by round 1 to 7
      - id: rounds_157
        type: round_157
        repeat: expr
        repeat-expr: 7
        doc: |
          by round 1 to 7
      - id: cart1
        -orig-id: Cart1
        type: str
        size: 10
        pad-right: 0x20
        repeat: expr
        repeat-expr: 7
        doc: |
          by round 1 to 7
      - id: cart2
        -orig-id: Cart2
        type: str
        size: 10
        pad-right: 0x20
        repeat: expr
        repeat-expr: 7
        doc: |
          by round 1 to 7
      - id: unnamed_339
        -orig-id: bytes@339
        size: 1000
        doc: |
          bytes without a meaning
  round_101:
    seq:
      - id: tee_time_value
        -orig-id: TeeTimeValue
        type: f4
        doc: |
          fraction of a day
      - id: unnamed_105
        -orig-id: bytes@105
        size: 4
        doc: |
          bytes without a meaning
  round_157:
    seq:
      - id: tee_start_hole
        -orig-id: TeeStartHole
        type: str
        size: 3
        pad-right: 0x20
        doc: |
          such as `01` or `10B`; corrected if invalid
      - id: unnamed_160
        -orig-id: bytes@160
        size: 3
        doc: |
          bytes without a meaning
