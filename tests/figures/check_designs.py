# SPDX-License-Identifier: MIT
"""What a student types in the designs that checks.py works out: stored values, standard resistors, presets turned until the
sheet is content."""

DESIGNS = {
    "form2": """new Form2
enter Text1
enter Text3
enter Text4
enter Text8
enter Text15 1300
enter Text9
enter-each Text10 Text11
enter Text17 18
enter Text12
enter Text13
enter Text16 25
enter-each Text2 Text6 Text7
enter Text18 13
enter Text19 139.43""",
    "desaco": """new desaco
enter Text1
enter Text3
enter Text4
enter Text8
enter Text15 1300
enter Text9
enter Text10
enter Text11
enter Text17 1.5
enter Text12
enter Text13
enter Text16 10
enter Text2
enter Text6
enter Text7
enter Text18 13
enter Text19 48.59
click Text2""",
    "parcdesac": """new ParcDesac
enter Text1
enter Text3
enter Text4
enter Text8
enter Text15 270
enter-each Text9 Text10 Text11
enter Text17 3.9
enter Text12
enter Text13
enter Text16 15
enter-each Text2 Text6 Text7
enter Text18 27
enter Text19 90.0
click Text2""",
    "form8": """new Form8
enter-each Text5 Text6 Text7 Text8 Text9 Text13 Text11
enter Text14
enter Text10
enter Text2
enter Text17 6.8
click Command1
enter Text16 12
enter Text19
enter Text15 1
window Form8""",
    "form18": """new Form18
enter-each Text12 Text5 Text6 Text7 Text8 Text9 Text13 Text11 Text14 Text10
enter Text2
enter Text17 6.8
click Command1
enter Text16 25
enter Text19 110
enter Text18 4.3
enter Text15 1
window Form18""",
    "form4": """new Form4
enter Text1
enter Text3
enter Text4
enter Text8
enter Text9
enter Text13
enter Text11
enter Text14
enter Text10
enter Text2
enter Text12
enter Text5
enter Text6
enter Text7
enter Text18 1.3
enter Text20 12
enter Text15 5.6
enter Text16
enter Text17 57.32""",
    "form17": """new Form17
enter Text12
enter Text5
enter Text6
enter Text7
enter Text2
enter Text4
enter Text9
enter Text13
enter Text14
enter Text8
answer yes
enter Text15
enter Text16
enter Text17 11.55""",
    "form9": """new Form9
enter Text4
enter Text8
enter Text9
enter Text13
enter Text14
enter Text10
enter Text2
enter Text12
enter Text5
enter Text6
enter Text7
answer no
enter Text20
enter Text15 2.7
enter Text16 20
enter Text17 46.2""",
    "form3": """new Form3
enter Text1
enter-each Text6 Text7
enter-each Text9..Text11
enter-each Text12..Text14
enter Text15
enter-each Text5 Text2..Text4
enter Text8
enter Text16 20
enter Text17 16
enter Text18 24""",
    "form13": """new Form13
enter Text1
enter Text2
enter Text3
enter Text5 15
enter Text6 12
enter Text7
click Text8
enter Text9 12
enter Text10 2.7
click Text11""",
    "form12": """new Form12
enter Text1 2
enter Text2 4
enter Text3
enter Text9
enter Text4 2.2
enter Text5
enter Text6 3.9
enter Text7 4.7""",
    "form15": """new Form15
enter Text1
enter Text2
click Image1
enter Text10
enter Text11
enter Text3
enter Text4
enter Text5
enter Text6
enter Text7
enter Text8 180
enter Text9 910""",
    "form20": """new form20
enter Text1
enter Text2
click Image1
enter Text10
enter Text11
enter Text3
enter Text4
enter Text5
enter Text6
enter Text7
enter Text8
enter Text9 51000""",
    "form10": """new Form10
enter Text1
enter Text2
enter Text10
enter Text5
enter Text6
click Text6
click Command1
click Text7
enter Text7 6.2
enter Text6 12
enter Text8
fill Text3 0.47
enter
enter Text4 1.3
click Command1
fill Text9 5.1
enter
enter Text11 2
enter Text12""",
    "form11": """new Form11
enter-each Text1 Text2
enter Text10 36
enter Text5
enter Text6
click Text6
click SSCommand2
click Text7
enter Text7
enter Text6
enter Text8 3
enter Text3
enter Text4
click SSCommand1
enter Text9
enter Text11 4
enter Text12""",
}
