meta:
  id: kelvane_history
  title: Score histories of a Kelvane roster
  file-extension: kvs
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.KVS
  Each record contains up to 300 scores of a golfer, the newest first. The golfer is in the record with the same number in the .KVG file.
seq:
  - id: records
    type: record
    size: 14700
    repeat: eos
types:
  record:
    seq:
      - id: scores
        type: score
        repeat: expr
        repeat-expr: 300
        doc: |
          by score 1 to 300
  score:
    seq:
      - id: course_number
        -orig-id: CourseNumber
        type: s2
        doc: |
          in Kelvane's course library; 0: an away course
      - id: tee_number
        -orig-id: TeeNumber
        type: u1
        doc: |
          0: none
      - id: rating
        -orig-id: Rating
        type: f4
        doc: |
          course rating in strokes
      - id: slope
        -orig-id: Slope
        type: u1
        doc: |
          slope rating
      - id: date
        -orig-id: Date
        type: f8
        doc: |
          date of play
          days since 30 December 1899; the fraction is the time of day
      - id: hole_score
        -orig-id: HoleScore
        type: u1
        repeat: expr
        repeat-expr: 18
        doc: |
          strokes
          by hole 1 to 18
      - id: gross
        -orig-id: Gross
        type: u1
        doc: |
          strokes
      - id: adjusted
        -orig-id: Adjusted
        type: u1
        doc: |
          strokes that count for the handicap
      - id: score_type
        -orig-id: ScoreType
        type: u1
        doc: |
          0: plain; 2: tournament; 4: two nines joined
      - id: handicap_played
        -orig-id: HandicapPlayed
        type: s2
        doc: |
          handicap played off, in strokes
      - id: putts
        -orig-id: Putts
        type: u1
        doc: |
          number of putts
      - id: fairways
        -orig-id: Fairways
        type: u1
        doc: |
          number of fairways hit
      - id: greens
        -orig-id: Greens
        type: u1
        doc: |
          number of greens hit
      - id: label
        -orig-id: Label
        type: str
        size: 7
        pad-right: 0x20
