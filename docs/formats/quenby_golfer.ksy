meta:
  id: quenby_golfer
  title: Golfers of Quenby
  file-extension: q9d
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  QBGOLFER.Q9D
  The file contains one record for each golfer of any roster. Records 1 to 9 are never used for a golfer. "Corrected" means that Golf Transfer replaces an invalid value when it reads the record.
seq:
  - id: records
    type: record
    size: 1867
    repeat: eos
types:
  record:
    seq:
      - id: print_player
        -orig-id: PrintPlayer
        type: s2
        doc: |
          bit 0: is printed
      - id: cart
        -orig-id: Cart
        type: s2
        doc: |
          bit 0: takes a cart
      - id: id_num
        -orig-id: IDNum
        type: s4
        doc: |
          1 or more: a golfer; -1: never used again; any other value: free
      - id: rosters
        -orig-id: Rosters
        type: s2
        repeat: expr
        repeat-expr: 4
        doc: |
          roster numbers, packed to the front; 0: none; nothing fills the fourth
          by index 1 to 4
      - id: name_first
        -orig-id: NameFirst
        type: str
        size: 11
        pad-right: 0x20
      - id: name_last
        -orig-id: NameLast
        type: str
        size: 16
        pad-right: 0x20
      - id: sex
        -orig-id: Sex
        type: u1
        doc: |
          0: male; 1: female; corrected to 0
      - id: address_home_line
        -orig-id: AddressHomeLine
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 4
        doc: |
          by index 1 to 4
      - id: address_work_line
        -orig-id: AddressWorkLine
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 4
        doc: |
          by index 1 to 4
      - id: phone_home
        -orig-id: PhoneHome
        type: str
        size: 20
        pad-right: 0x20
      - id: phone_work
        -orig-id: PhoneWork
        type: str
        size: 20
        pad-right: 0x20
      - id: phone_fax
        -orig-id: PhoneFax
        type: str
        size: 20
        pad-right: 0x20
      - id: email
        -orig-id: Email
        type: str
        size: 60
        pad-right: 0x20
      - id: group_text
        -orig-id: GroupText
        type: str
        size: 20
        pad-right: 0x20
      - id: flight
        -orig-id: Flight
        type: str
        size: 1
        pad-right: 0x20
        doc: |
          `A` to `Z`; corrected to `A`
      - id: group_tee
        -orig-id: GroupTee
        type: s2
        doc: |
          tee group, 1 to 5; corrected to 1
      - id: preferred_time
        -orig-id: PreferredTime
        type: s2
        doc: |
          0: none; 1: early; 2: middle; 3: late
      - id: report_flags
        -orig-id: ReportFlags
        type: str
        size: 12
        pad-right: 0x20
        doc: |
          Quenby's own; copied unchanged
      - id: index
        -orig-id: Index
        type: f4
        doc: |
          handicap index in strokes; below 0: a plus index
      - id: handicap
        -orig-id: Handicap
        type: f4
        doc: |
          strokes; below 0: a plus handicap
      - id: misc_text
        -orig-id: MiscText
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          by index 1 to 5
      - id: misc_date
        -orig-id: MiscDate
        type: f8
        repeat: expr
        repeat-expr: 2
        doc: |
          days since 30 December 1899; the fraction is the time of day
          by index 1 to 2
      - id: misc_currency
        -orig-id: MiscCurrency
        type: s8
        repeat: expr
        repeat-expr: 5
        doc: |
          the amount times 10000
          by index 1 to 5
      - id: due_date
        -orig-id: DueDate
        type: f8
        doc: |
          date of the dues
          days since 30 December 1899; the fraction is the time of day
      - id: due_amount
        -orig-id: DueAmount
        type: s8
        doc: |
          amount of the dues
          the amount times 10000
      - id: due_comment
        -orig-id: DueComment
        type: str
        size: 30
        pad-right: 0x20
        doc: |
          comment about the dues
      - id: comments
        -orig-id: Comments
        type: str
        size: 200
        pad-right: 0x20
      - id: misc_in_tour_text
        -orig-id: MiscInTourText
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          copied into a tournament entry with the golfer
          by index 1 to 5
      - id: unnamed_1051
        -orig-id: bytes@1051
        size: 816
        doc: |
          bytes without a meaning
