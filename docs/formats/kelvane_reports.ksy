meta:
  id: kelvane_reports
  title: Report settings of Kelvane
  file-extension: cfg
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  REPORTS.CFG
  The records belong to all rosters. Golf Transfer opens this file, but never reads or writes it.
seq:
  - id: records
    type: record
    size: 4744
    repeat: eos
types:
  record:
    seq:
      - id: unnamed_0
        -orig-id: bytes@0
        size: 4744
        doc: |
          bytes without a meaning
