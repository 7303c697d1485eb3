meta:
  id: course
  title: Course library
  file-extension: dat
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  KVCRS.DAT, QBCRS.DAT, ZDCRS.DAT
  The file contains one record for each course. The number of a course is its record number. A deleted course keeps its record. In Kelvane's own file, KVCRS.DAT, YardsOrMeters has no meaning.
seq:
  - id: records
    type: record
    size: 3226
    repeat: eos
types:
  record:
    seq:
      - id: activeflag
        -orig-id: activeflag
        type: s2
        doc: |
          0: a deleted course, which is ignored everywhere; any other value: in use
      - id: hole_num_flag
        -orig-id: HoleNumFlag
        type: s2
        doc: |
          18: 18 holes; 9: a front nine; -9: a back nine
      - id: name
        -orig-id: Name
        type: str
        size: 30
        pad-right: 0x20
      - id: address1
        -orig-id: Address1
        type: str
        size: 30
        pad-right: 0x20
      - id: address2
        -orig-id: Address2
        type: str
        size: 30
        pad-right: 0x20
      - id: city
        -orig-id: City
        type: str
        size: 17
        pad-right: 0x20
      - id: state
        -orig-id: State
        type: str
        size: 2
        pad-right: 0x20
      - id: zipcode
        -orig-id: Zipcode
        type: str
        size: 10
        pad-right: 0x20
      - id: golf_pro
        -orig-id: GolfPro
        type: str
        size: 20
        pad-right: 0x20
      - id: phone
        -orig-id: Phone
        type: str
        size: 15
        pad-right: 0x20
      - id: active_tees
        -orig-id: ActiveTees
        type: u1
        repeat: expr
        repeat-expr: 6
        doc: |
          255: active; 0: not active; tee 6 is never shown
          by tee 1 to 6
      - id: pars_flag
        -orig-id: ParsFlag
        type: s2
        doc: |
          bit t is set if tee t has a par on its first hole
      - id: handicap_flag
        -orig-id: HandicapFlag
        type: s2
        doc: |
          bit t is set if tee t has a `HoleHandicap` on its first hole
      - id: tee_name
        -orig-id: TeeName
        type: str
        size: 7
        pad-right: 0x20
        repeat: expr
        repeat-expr: 6
        doc: |
          by tee 1 to 6
      - id: tee_name_abv
        -orig-id: TeeNameAbv
        type: str
        size: 1
        pad-right: 0x20
        repeat: expr
        repeat-expr: 6
        doc: |
          one letter
          by tee 1 to 6
      - id: rating
        -orig-id: Rating
        type: f4
        repeat: expr
        repeat-expr: 12
        doc: |
          course rating in strokes; group 0: men, 1: ladies
          by tee 1 to 6 and group 0 to 1; tee varies fastest
      - id: slope
        -orig-id: slope
        type: s2
        repeat: expr
        repeat-expr: 12
        doc: |
          slope rating; group 0: men, 1: ladies
          by tee 1 to 6 and group 0 to 1; tee varies fastest
      - id: hole_yard
        -orig-id: HoleYard
        type: s2
        repeat: expr
        repeat-expr: 108
        doc: |
          length in the unit of `YardsOrMeters`
          by tee 1 to 6 and hole 1 to 18; tee varies fastest
      - id: yard_out
        -orig-id: YardOut
        type: s2
        repeat: expr
        repeat-expr: 6
        doc: |
          length of the front nine
          by tee 1 to 6
      - id: yard_in
        -orig-id: YardIn
        type: s2
        repeat: expr
        repeat-expr: 6
        doc: |
          length of the back nine
          by tee 1 to 6
      - id: yard_total
        -orig-id: YardTotal
        type: s2
        repeat: expr
        repeat-expr: 6
        doc: |
          length of all holes
          by tee 1 to 6
      - id: hole_par
        -orig-id: HolePar
        type: s2
        repeat: expr
        repeat-expr: 108
        doc: |
          strokes
          by tee 1 to 6 and hole 1 to 18; tee varies fastest
      - id: par_out
        -orig-id: ParOut
        type: s2
        repeat: expr
        repeat-expr: 6
        doc: |
          strokes of the front nine
          by tee 1 to 6
      - id: par_in
        -orig-id: ParIn
        type: s2
        repeat: expr
        repeat-expr: 6
        doc: |
          strokes of the back nine
          by tee 1 to 6
      - id: par_total
        -orig-id: ParTotal
        type: s2
        repeat: expr
        repeat-expr: 6
        doc: |
          strokes of all holes
          by tee 1 to 6
      - id: hole_handicap
        -orig-id: HoleHandicap
        type: s2
        repeat: expr
        repeat-expr: 108
        doc: |
          1 (hardest) to 18; 0: none
          by tee 1 to 6 and hole 1 to 18; tee varies fastest
      - id: strk_sqnc
        -orig-id: StrkSqnc
        type: s2
        repeat: expr
        repeat-expr: 108
        doc: |
          the hole that gets this handicap stroke
          by tee 1 to 6 and stroke 1 to 18; tee varies fastest
      - id: kv_course_num
        -orig-id: KVCourseNum
        type: s2
        doc: |
          in Quenby: the Kelvane course that this one was copied from; 0: none
      - id: hole_number
        -orig-id: HoleNumber
        type: s2
        repeat: expr
        repeat-expr: 108
        doc: |
          printed number, 1 to 72
          by tee 1 to 6 and hole 1 to 18; tee varies fastest
      - id: yards_or_meters
        -orig-id: YardsOrMeters
        type: u1
        doc: |
          1: meters; any other value: yards
      - id: unnamed_1443
        -orig-id: bytes@1443
        size: 1783
        doc: |
          bytes without a meaning
