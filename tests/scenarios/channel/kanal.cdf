abc
  
