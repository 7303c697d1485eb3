meta:
  id: tournament_player
  title: Entries of a Quenby tournament
  file-extension: q9g
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.Q9G
  The file contains one record for each golfer who takes part. "Corrected" means that Golf Transfer replaces an invalid value when it reads the record.
seq:
  - id: records
    type: record
    size: 3052
    repeat: eos
types:
  record:
    seq:
      - id: tour_roster_record_pointer
        -orig-id: TourRosterRecordPointer
        type: s2
        doc: |
          record of `QBGOLFER.Q9D`; 0, or a record that the file does not have: a free entry
      - id: tour_team_on
        -orig-id: TourTeamOn
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          team number; 0: none
          by round 1 to 7
      - id: tour_team_position_in
        -orig-id: TourTeamPositionIn
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          place on the team
          by round 1 to 7
      - id: tour_flags
        -orig-id: TourFlags
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          bit 0: locked; bit 1: the score was transferred to Kelvane
          by round 1 to 7
      - id: unnamed_44
        -orig-id: bytes@44
        size: 14
        doc: |
          bytes without a meaning
      - id: tour_index
        -orig-id: TourIndex
        type: f4
        repeat: expr
        repeat-expr: 7
        doc: |
          handicap index in strokes; below 0: a plus index
          by round 1 to 7
      - id: tour_gross_handicap
        -orig-id: TourGrossHandicap
        type: f4
        repeat: expr
        repeat-expr: 7
        doc: |
          strokes; below 0: a plus handicap
          by round 1 to 7
      - id: tour_quota
        -orig-id: TourQuota
        type: f4
        repeat: expr
        repeat-expr: 7
        doc: |
          points
          by round 1 to 7
      - id: tour_flight
        -orig-id: TourFlight
        type: str
        size: 1
        pad-right: 0x20
        repeat: expr
        repeat-expr: 7
        doc: |
          `A` to the last of `NumFlights`; corrected to `A`
          by round 1 to 7
      - id: tour_group_tee
        -orig-id: TourGroupTee
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          1 to the tee groups of the golfer's sex; corrected to 1
          by round 1 to 7
      - id: tour_preferred_time
        -orig-id: TourPreferredTime
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          0: none; 1: early; 2: middle; 3: late
          by round 1 to 7
      - id: tour_cart
        -orig-id: TourCart
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          not 0: takes a cart
          by round 1 to 7
      - id: tour_report_flags
        -orig-id: TourReportFlags
        type: str
        size: 12
        pad-right: 0x20
        repeat: expr
        repeat-expr: 7
        doc: |
          Quenby's own; copied unchanged
          by round 1 to 7
      - id: tour_group_text
        -orig-id: TourGroupText
        type: str
        size: 20
        pad-right: 0x20
        repeat: expr
        repeat-expr: 7
        doc: |
          by round 1 to 7
      - id: reserved415
        -orig-id: Reserved415
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          0 in a new entry
          by round 1 to 7
      - id: reserved429
        -orig-id: Reserved429
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          0 in a new entry
          by round 1 to 7
      - id: tour_score_gross
        -orig-id: TourScoreGross
        type: s2
        repeat: expr
        repeat-expr: 126
        doc: |
          strokes; 0: not played
          by hole 1 to 18 and round 1 to 7; hole varies fastest
      - id: tour_score_gross_total
        -orig-id: TourScoreGrossTotal
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          strokes, if totals are entered
          by round 1 to 7
      - id: tour_score_adjusted
        -orig-id: TourScoreAdjusted
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          strokes for the handicap, if totals are entered; at most 250
          by round 1 to 7
      - id: tour_putts
        -orig-id: TourPutts
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          number of putts; at most 200
          by round 1 to 7
      - id: tour_fairways
        -orig-id: TourFairways
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          number of fairways hit
          by round 1 to 7
      - id: tour_greens
        -orig-id: TourGreens
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          number of greens hit
          by round 1 to 7
      - id: tour_earnings
        -orig-id: TourEarnings
        type: s8
        repeat: expr
        repeat-expr: 7
        doc: |
          amount won
          the amount times 10000
          by round 1 to 7
      - id: tour_team_on_in_trial
        -orig-id: TourTeamOnInTrial
        type: s2
        repeat: expr
        repeat-expr: 24
        doc: |
          team number in the team draw
          by trial 1 to 24
      - id: tour_misc_in_tour_text
        -orig-id: TourMiscInTourText
        type: str
        size: 30
        pad-right: 0x20
        repeat: expr
        repeat-expr: 5
        doc: |
          by index 1 to 5
      - id: unnamed_1019
        -orig-id: bytes@1019
        size: 2033
        doc: |
          bytes without a meaning
