"""index.py DIR PAGE: what a user would write to make an index page of DIR."""

import os
import sys

lines = ["<HTML>", "<HEAD>", "     <TITLE></TITLE>", "</HEAD>", "<BODY>", "<UL>"]
for folder in sorted(os.listdir(sys.argv[1]), key=str.lower):
    path = os.path.join(sys.argv[1], folder)
    if os.path.isdir(path):
        lines += [f"   <LI><B>{folder}</B> <BR>", "     <UL>"]
        lines += [f'          <LI><A HREF="{folder}/{name}">{name}</A> <BR>'
                  for name in sorted(os.listdir(path), key=str.lower)]
        lines.append("     </UL>")
with open(sys.argv[2], "w", encoding="utf-8", newline="\r\n") as page:
    page.write("\n".join(lines + ["</UL>", "</BODY>", "</HTML>", ""]))
