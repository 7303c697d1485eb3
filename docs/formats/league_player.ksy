meta:
  id: league_player
  title: Players and substitutes of a Zandel league
  file-extension: [zp8, zs8]
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.ZP8, *.ZS8
  The file contains one record for each player of a division (.ZP8) or substitute of a league (.ZS8). Records 1 to 5 of a .ZS8 file are never used.
seq:
  - id: records
    type: record
    size: 8012
    repeat: eos
types:
  record:
    seq:
      - id: unnamed_0
        -orig-id: bytes@0
        size: 4
        doc: |
          bytes without a meaning
      - id: golfer_id
        -orig-id: GolferID
        type: s4
        doc: |
          `IDNum` of the golfer in Kelvane; below 1: no link
      - id: first_name
        -orig-id: FirstName
        type: str
        size: 15
        pad-right: 0x20
      - id: last_name
        -orig-id: LastName
        type: str
        size: 15
        pad-right: 0x20
        doc: |
          blank: an empty record
      - id: address_line1
        -orig-id: AddressLine1
        type: str
        size: 30
        pad-right: 0x20
      - id: address_line2
        -orig-id: AddressLine2
        type: str
        size: 30
        pad-right: 0x20
      - id: address_line3
        -orig-id: AddressLine3
        type: str
        size: 30
        pad-right: 0x20
      - id: email
        -orig-id: Email
        type: str
        size: 40
        pad-right: 0x20
      - id: unnamed_168
        -orig-id: bytes@168
        size: 16
        doc: |
          bytes without a meaning
      - id: unnamed_184
        -orig-id: bytes@184
        size: 30
        doc: |
          bytes without a meaning
      - id: unnamed_214
        -orig-id: bytes@214
        size: 150
        doc: |
          bytes without a meaning
      - id: unnamed_364
        -orig-id: bytes@364
        size: 2
        doc: |
          bytes without a meaning
      - id: unnamed_366
        -orig-id: bytes@366
        size: 16
        doc: |
          bytes without a meaning
      - id: sex
        -orig-id: Sex
        type: s2
        doc: |
          0: male; 1: female
      - id: phone_home
        -orig-id: PhoneHome
        type: str
        size: 12
        pad-right: 0x20
      - id: phone_work
        -orig-id: PhoneWork
        type: str
        size: 12
        pad-right: 0x20
      - id: unnamed_408
        -orig-id: bytes@408
        size: 50
        doc: |
          bytes without a meaning
      - id: unnamed_458
        -orig-id: bytes@458
        size: 12
        doc: |
          bytes without a meaning
      - id: event_team
        -orig-id: EventTeam
        type: s2
        repeat: expr
        repeat-expr: 50
        doc: |
          number of the team played on, 1 to 100
          by event 1 to 50
      - id: unnamed_570
        -orig-id: bytes@570
        size: 300
        doc: |
          bytes without a meaning
      - id: event_score
        -orig-id: EventScore
        type: s2
        repeat: expr
        repeat-expr: 50
        doc: |
          strokes; above 0: a score was entered
          by event 1 to 50
      - id: event_post_score
        -orig-id: EventPostScore
        type: s2
        repeat: expr
        repeat-expr: 50
        doc: |
          strokes that count for the handicap
          by event 1 to 50
      - id: unnamed_1070
        -orig-id: bytes@1070
        size: 200
        doc: |
          bytes without a meaning
      - id: event_handicap
        -orig-id: EventHandicap
        type: f4
        repeat: expr
        repeat-expr: 50
        doc: |
          strokes carried into the event; below 0: a plus handicap
          by event 1 to 50
      - id: unnamed_1470
        -orig-id: bytes@1470
        size: 100
        doc: |
          bytes without a meaning
      - id: unnamed_1570
        -orig-id: bytes@1570
        size: 100
        doc: |
          bytes without a meaning
      - id: unnamed_1670
        -orig-id: bytes@1670
        size: 200
        doc: |
          bytes without a meaning
      - id: unnamed_1870
        -orig-id: bytes@1870
        size: 8
        doc: |
          bytes without a meaning
      - id: unnamed_1878
        -orig-id: bytes@1878
        size: 1800
        doc: |
          bytes without a meaning
      - id: unnamed_3678
        -orig-id: bytes@3678
        size: 200
        doc: |
          bytes without a meaning
      - id: non_event_before
        -orig-id: NonEventBefore
        type: u1
        repeat: expr
        repeat-expr: 100
        doc: |
          the event that the score was played before; 1: practice
          by slot 1 to 100
      - id: non_event_score
        -orig-id: NonEventScore
        type: s2
        repeat: expr
        repeat-expr: 100
        doc: |
          strokes
          by slot 1 to 100
      - id: non_event_rating10
        -orig-id: NonEventRating10
        type: s2
        repeat: expr
        repeat-expr: 100
        doc: |
          course rating in tenths of a stroke
          by slot 1 to 100
      - id: non_event_slope
        -orig-id: NonEventSlope
        type: s2
        repeat: expr
        repeat-expr: 100
        doc: |
          slope rating
          by slot 1 to 100
      - id: unnamed_4578
        -orig-id: bytes@4578
        size: 16
        doc: |
          bytes without a meaning
      - id: unnamed_4594
        -orig-id: bytes@4594
        size: 450
        doc: |
          bytes without a meaning
      - id: unnamed_5044
        -orig-id: bytes@5044
        size: 18
        doc: |
          bytes without a meaning
      - id: unnamed_5062
        -orig-id: bytes@5062
        size: 450
        doc: |
          bytes without a meaning
      - id: unnamed_5512
        -orig-id: bytes@5512
        size: 1
        doc: |
          bytes without a meaning
      - id: unnamed_5513
        -orig-id: bytes@5513
        size: 32
        doc: |
          bytes without a meaning
      - id: unnamed_5545
        -orig-id: bytes@5545
        size: 2467
        doc: |
          bytes without a meaning
