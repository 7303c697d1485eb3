meta:
  id: kelvane_system
  title: System settings of Kelvane
  file-extension: fil
  license: CC0-1.0
  ks-version: '0.9'
  endian: le
  encoding: windows-1252
doc: |
  KVSYSTEM.FIL
  The file contains one record.
seq:
  - id: records
    type: record
    size: 733
    repeat: eos
types:
  record:
    seq:
      - id: version
        -orig-id: Version
        type: s2
        doc: |
          500; a file with any other value is replaced by the defaults
      - id: roster_name
        -orig-id: RosterName
        type: str
        size: 128
        pad-right: 0x20
      - id: setting130
        -orig-id: Setting130
        type: str
        size: 60
        pad-right: 0x20
      - id: setting190
        -orig-id: Setting190
        type: s2
      - id: setting192
        -orig-id: Setting192
        type: u1
      - id: font_name
        -orig-id: FontName
        type: str
        size: 60
        pad-right: 0x20
        repeat: expr
        repeat-expr: 9
        doc: |
          by index 1 to 9
