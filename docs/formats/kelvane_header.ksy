meta:
  id: kelvane_header
  title: Header of a Kelvane roster
  file-extension: kv5
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.KV5
  The file contains one record. Only Kelvane uses the fields whose names contain their offset in the record, such as Setting153.
seq:
  - id: records
    type: record
    size: 781
    repeat: eos
types:
  record:
    seq:
      - id: version
        -orig-id: Version
        type: s2
        doc: |
          5000 in a new roster; never tested
      - id: title
        -orig-id: Title
        type: str
        size: 40
        pad-right: 0x20
      - id: address
        -orig-id: Address
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 3
        doc: |
          by line 1 to 3
      - id: phone
        -orig-id: Phone
        type: str
        size: 20
        pad-right: 0x20
      - id: holes
        -orig-id: Holes
        type: u1
        doc: |
          18: handicaps for 18 holes; any other value: for 9
      - id: setting153
        -orig-id: Setting153
        type: u1
        doc: |
          1 after a score transfer has posted
      - id: setting154
        -orig-id: Setting154
        type: s4
      - id: setting158
        -orig-id: Setting158
        type: s2
      - id: setting160
        -orig-id: Setting160
        type: s2
        repeat: expr
        repeat-expr: 2
        doc: |
          by sex 0 to 1
      - id: setting164
        -orig-id: Setting164
        type: s2
        repeat: expr
        repeat-expr: 5
        doc: |
          by index 1 to 5
      - id: setting174
        -orig-id: Setting174
        type: s2
        repeat: expr
        repeat-expr: 10
        doc: |
          by sex 0 to 1 and position 1 to 5; sex varies fastest
      - id: code194
        -orig-id: Code194
        type: str
        size: 1
        pad-right: 0x20
        repeat: expr
        repeat-expr: 2
        doc: |
          by sex 0 to 1
      - id: setting196
        -orig-id: Setting196
        type: f4
      - id: slope200
        -orig-id: Slope200
        type: u1
        doc: |
          113 in a new roster
      - id: setting201
        -orig-id: Setting201
        type: s2
      - id: setting203
        -orig-id: Setting203
        type: s2
        repeat: expr
        repeat-expr: 2
        doc: |
          by sex 0 to 1
      - id: code207
        -orig-id: Code207
        type: str
        size: 1
        pad-right: 0x20
        repeat: expr
        repeat-expr: 2
        doc: |
          by sex 0 to 1
      - id: setting209
        -orig-id: Setting209
        type: f4
      - id: slope213
        -orig-id: Slope213
        type: u1
        doc: |
          113 in a new roster
      - id: setting214
        -orig-id: Setting214
        type: s2
      - id: setting216
        -orig-id: Setting216
        type: s2
        repeat: expr
        repeat-expr: 2
        doc: |
          by sex 0 to 1
      - id: counter_date
        -orig-id: CounterDate
        type: f8
        repeat: expr
        repeat-expr: 4
        doc: |
          score counter 3 uses the first, 4 the second, 2 the third
          days since 30 December 1899; the fraction is the time of day
          by index 1 to 4
      - id: handicap_method
        -orig-id: HandicapMethod
        type: u1
        doc: |
          100 or more: handicaps without an index
      - id: setting253
        -orig-id: Setting253
        type: f4
      - id: setting257
        -orig-id: Setting257
        type: s2
      - id: setting259
        -orig-id: Setting259
        type: s2
      - id: table261
        -orig-id: Table261
        type: s2
        repeat: expr
        repeat-expr: 30
        doc: |
          by index 1 to 30
      - id: table321
        -orig-id: Table321
        type: s2
        repeat: expr
        repeat-expr: 30
        doc: |
          by index 1 to 30
      - id: maximum_handicap
        -orig-id: MaximumHandicap
        type: s2
        repeat: expr
        repeat-expr: 2
        doc: |
          strokes; sex 0: men, 1: ladies
          by sex 0 to 1
      - id: setting385
        -orig-id: Setting385
        type: s2
      - id: setting387
        -orig-id: Setting387
        type: s2
      - id: setting389
        -orig-id: Setting389
        type: s2
      - id: setting391
        -orig-id: Setting391
        type: s2
      - id: setting393
        -orig-id: Setting393
        type: s2
      - id: setting395
        -orig-id: Setting395
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          by index 1 to 3
      - id: maximum_index
        -orig-id: MaximumIndex
        type: f4
        repeat: expr
        repeat-expr: 2
        doc: |
          strokes; sex 0: men, 1: ladies
          by sex 0 to 1
      - id: setting409
        -orig-id: Setting409
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          by index 1 to 3
      - id: setting415
        -orig-id: Setting415
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          by index 1 to 3
      - id: misc_text_name
        -orig-id: MiscTextName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 20
        doc: |
          caption of the user's own text
          by index 1 to 20
      - id: misc_date_name
        -orig-id: MiscDateName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          caption of the user's own date
          by index 1 to 5
      - id: misc_curr_name
        -orig-id: MiscCurrName
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          caption of the user's own amount
          by index 1 to 5
