meta:
  id: tournament
  title: Control file of a Quenby tournament
  file-extension: q9c
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *.Q9C
  The file contains one record. DEFAULT.Q9C contains the defaults of new tournaments. "Corrected" means that Golf Transfer replaces an invalid value when it reads the record.
seq:
  - id: records
    type: record
    size: 1208
    repeat: eos
types:
  record:
    seq:
      - id: name
        -orig-id: Name
        type: str
        size: 50
        pad-right: 0x20
      - id: num_rounds
        -orig-id: NumRounds
        type: s2
        doc: |
          1 to 5; corrected if out of range
      - id: num_teams
        -orig-id: NumTeams
        type: s2
        doc: |
          1 to 200; corrected if out of range
      - id: num_players_per_team
        -orig-id: NumPlayersPerTeam
        type: s2
      - id: num_flights
        -orig-id: NumFlights
        type: s2
        doc: |
          1 to 26; corrected if out of range
      - id: num_team_flights
        -orig-id: NumTeamFlights
        type: s2
        doc: |
          1 to 26; corrected if out of range
      - id: num_tees_men_play
        -orig-id: NumTeesMenPlay
        type: s2
        doc: |
          men's tee groups, 0 to 5; corrected if out of range
      - id: num_tees_ladies_play
        -orig-id: NumTeesLadiesPlay
        type: s2
        doc: |
          ladies' tee groups, 0 to 5; corrected if out of range
      - id: round_type
        -orig-id: RoundType
        type: s2
        doc: |
          holes of a round: 9 or 18; corrected to 18
      - id: indexto_handicap
        -orig-id: IndextoHandicap
        type: s2
        doc: |
          -1: the slope converts an index to a handicap; 0: it does not
      - id: handicap_decimal_places
        -orig-id: HandicapDecimalPlaces
        type: s2
        doc: |
          -1: handicaps have two decimals; 0: none
      - id: score_entry_total
        -orig-id: ScoreEntryTotal
        type: s2
        doc: |
          -1: totals are entered; 0: holes are entered
      - id: rcgaesc
        -orig-id: RCGAESC
        type: s2
        doc: |
          -1: stroke control by the RCGA table; 0: not
      - id: team_handicap_option
        -orig-id: TeamHandicapOption
        type: s2
        doc: |
          1 or 3: the average of the players' handicaps; 2: a percentage of their sum; corrected to 1
      - id: team_handicap_percent
        -orig-id: TeamHandicapPercent
        type: f4
        doc: |
          percent
      - id: point_quota_option
        -orig-id: PointQuotaOption
        type: s2
        doc: |
          1: `PointQuotaFromHandicap` minus the handicap; 2: the handicap; 3: the quota of the entry; corrected to 1
      - id: point_quota_from_handicap
        -orig-id: PointQuotaFromHandicap
        type: s2
        doc: |
          points
      - id: points_given
        -orig-id: PointsGiven
        type: s2
        repeat: expr
        repeat-expr: 11
        doc: |
          points for a hole, by score minus par
          by difference -5 to 5
      - id: position_option
        -orig-id: PositionOption
        type: s2
        doc: |
          1 or 2; corrected to 1
      - id: dateof_round
        -orig-id: DateofRound
        type: f8
        repeat: expr
        repeat-expr: 7
        doc: |
          days since 30 December 1899; the fraction is the time of day
          by round 1 to 7
      - id: course_number_played
        -orig-id: CourseNumberPlayed
        type: s2
        repeat: expr
        repeat-expr: 7
        doc: |
          in Quenby's course library; 0: an away course
          by round 1 to 7
      - id: tee_number_played
        -orig-id: TeeNumberPlayed
        type: s2
        repeat: expr
        repeat-expr: 70
        doc: |
          tee number; group 0: men, 1: ladies
          by group 0 to 1, tee group 1 to 5 and round 1 to 7; group varies fastest, then tee group
      - id: tee_handicap_percent
        -orig-id: TeeHandicapPercent
        type: f4
        repeat: expr
        repeat-expr: 70
        doc: |
          handicap allowance in percent; group 0: men, 1: ladies
          by group 0 to 1, tee group 1 to 5 and round 1 to 7; group varies fastest, then tee group
      - id: tee_handicap_adjustment
        -orig-id: TeeHandicapAdjustment
        type: f4
        repeat: expr
        repeat-expr: 70
        doc: |
          strokes added to the handicap; group 0: men, 1: ladies
          by group 0 to 1, tee group 1 to 5 and round 1 to 7; group varies fastest, then tee group
      - id: active_round
        -orig-id: ActiveRound
        type: s2
        doc: |
          the round to use if none is given
      - id: show_teamson_sheet
        -orig-id: ShowTeamsonSheet
        type: s2
        doc: |
          0 or -1
      - id: sheet_column_sorted
        -orig-id: SheetColumnSorted
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          columns that the sheet of players is sorted by
          by index 1 to 3
      - id: sheet_column_sorted_how
        -orig-id: SheetColumnSortedHow
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          direction, 0 or -1
          by index 1 to 3
      - id: tee_time_start_option
        -orig-id: TeeTimeStartOption
        type: s2
      - id: tee_time_inc
        -orig-id: TeeTimeInc
        type: f4
        doc: |
          interval between tee times
      - id: tee_time_inc_every_x_teams
        -orig-id: TeeTimeIncEveryXTeams
        type: s2
        doc: |
          teams that start together
      - id: player_flights_determined_by
        -orig-id: PlayerFlightsDeterminedBy
        type: s2
        doc: |
          0 to 4; corrected to 0
      - id: team_flights_determined_by
        -orig-id: TeamFlightsDeterminedBy
        type: s2
        doc: |
          0 to 4; corrected to 0
      - id: num_trials
        -orig-id: NumTrials
        type: s2
        doc: |
          trials of the team draw
      - id: active_trial
        -orig-id: ActiveTrial
        type: s2
        doc: |
          the trial in use
      - id: peoria_hole
        -orig-id: PeoriaHole
        type: s2
        repeat: expr
        repeat-expr: 18
        doc: |
          marks the holes of a Peoria draw
          by hole 1 to 18
      - id: team_sheet_column_sorted
        -orig-id: TeamSheetColumnSorted
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          columns that the sheet of teams is sorted by
          by index 1 to 3
      - id: team_sheet_column_sorted_how
        -orig-id: TeamSheetColumnSortedHow
        type: s2
        repeat: expr
        repeat-expr: 3
        doc: |
          direction, 0 or -1
          by index 1 to 3
      - id: handicap_max
        -orig-id: HandicapMax
        type: f4
        repeat: expr
        repeat-expr: 2
        doc: |
          highest handicap of a round in strokes; group 0: men, 1: ladies
          by group 0 to 1
      - id: version
        -orig-id: Version
        type: str
        size: 4
        pad-right: 0x20
        doc: |
          `2005`; reading a record with another version gives it a new `HandicapMax`, `TeamNamesMat` and new flight ranges
      - id: team_names_mat
        -orig-id: TeamNamesMat
        type: str
        size: 30
        pad-right: 0x20
        doc: |
          pattern of new team names, or `[Player's Last Names]`
      - id: player_flight_range
        -orig-id: PlayerFlightRange
        type: s4
        repeat: expr
        repeat-expr: 26
        doc: |
          upper bound of the flight
          by flight 1 to 26
      - id: team_flight_range
        -orig-id: TeamFlightRange
        type: s4
        repeat: expr
        repeat-expr: 26
        doc: |
          upper bound of the flight
          by flight 1 to 26
