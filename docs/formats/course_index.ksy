meta:
  id: course_index
  title: Course index
  file-extension: inx
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  *CRSKV.INX, *CRSQB.INX, *CRSZD.INX
  Record 1 is the number of entries. The next records are course numbers in the order of display. Records after the last entry have no meaning.
seq:
  - id: records
    type: record
    size: 2
    repeat: eos
types:
  record:
    seq:
      - id: index
        -orig-id: Index
        type: s2
        doc: |
          record 1: the number of entries; other records: a course number
