meta:
  id: kelvane_golfer
  title: Golfers of a Kelvane roster
  file-extension: kvg
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.KVG
  Each record contains a golfer or is free. Only Kelvane uses the fields whose names contain their offset in the record, such as Setting437.
seq:
  - id: records
    type: record
    size: 2804
    repeat: eos
types:
  record:
    seq:
      - id: status
        -orig-id: Status
        type: s2
        doc: |
          1 or more: a golfer; else the place is free and may contain a former golfer's bytes
      - id: marked_to_print
        -orig-id: MarkedToPrint
        type: u1
        doc: |
          0: not marked
      - id: reserved3
        -orig-id: Reserved3
        type: u1
      - id: id_num
        -orig-id: IDNum
        type: s4
        doc: |
          number of the golfer; transfers match golfers by it
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
          1: female; any other value: male
      - id: address_home_line
        -orig-id: AddressHomeLine
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 4
        doc: |
          by line 1 to 4
      - id: address_work_line
        -orig-id: AddressWorkLine
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 4
        doc: |
          by line 1 to 4
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
      - id: group_number
        -orig-id: GroupNumber
        type: u1
      - id: index
        -orig-id: Index
        type: f4
        doc: |
          handicap index in strokes; below 0: a plus index
      - id: index_text
        -orig-id: IndexText
        type: str
        size: 5
        pad-right: 0x20
        doc: |
          the index as it is shown
      - id: handicap
        -orig-id: Handicap
        type: f4
        doc: |
          strokes; below 0: a plus handicap
      - id: handicap_text
        -orig-id: HandicapText
        type: str
        size: 6
        pad-right: 0x20
        doc: |
          the handicap as it is shown; blank or `*`: none
      - id: setting437
        -orig-id: Setting437
        type: u1
      - id: value438
        -orig-id: Value438
        type: f4
      - id: value442
        -orig-id: Value442
        type: f4
      - id: half_course
        -orig-id: HalfCourse
        type: s2
        doc: |
          a nine that waits for its other half: course number
      - id: half_tee
        -orig-id: HalfTee
        type: u1
        doc: |
          the waiting nine: tee number
      - id: half_rating
        -orig-id: HalfRating
        type: f4
        doc: |
          the waiting nine: course rating in strokes
      - id: half_slope
        -orig-id: HalfSlope
        type: u1
        doc: |
          the waiting nine: slope rating
      - id: half_score
        -orig-id: HalfScore
        type: u1
        doc: |
          the waiting nine: strokes; 0: no nine is waiting
      - id: score_counter
        -orig-id: ScoreCounter
        type: s2
        repeat: expr
        repeat-expr: 4
        doc: |
          1: scores in the history; 2: those on or after its date in the header; 3 and 4: those after their dates; each counts up to 300
          by counter 1 to 4
      - id: misc_text1
        -orig-id: MiscText1
        type: str
        size: 30
        pad-right: 0x20
      - id: misc_text2
        -orig-id: MiscText2
        type: str
        size: 20
        pad-right: 0x20
      - id: misc_text3
        -orig-id: MiscText3
        type: str
        size: 20
        pad-right: 0x20
      - id: misc_text4
        -orig-id: MiscText4
        type: str
        size: 10
        pad-right: 0x20
      - id: misc_text5
        -orig-id: MiscText5
        type: str
        size: 10
        pad-right: 0x20
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
      - id: value609
        -orig-id: Value609
        type: s8
        doc: |
          the amount times 10000
      - id: value617
        -orig-id: Value617
        type: s8
        doc: |
          the amount times 10000
      - id: text625
        -orig-id: Text625
        type: str
        size: 30
        pad-right: 0x20
      - id: comments
        -orig-id: Comments
        type: str
        size: 200
        pad-right: 0x20
      - id: reserved855
        -orig-id: Reserved855
        type: str
        size: 1949
        pad-right: 0x20
