// a file in no layer folder
